// Which printer makes the PDF files of a protocol, and below which folder they lie.
#pragma once

#include <QFileSystemModel>

#include "session/screens.h"
#include "ui_frmPrinterPDF.h"

class frmPrinterPDF : public Screen {
  public:
    static constexpr frm id = frm::PrinterPDF;
    frmPrinterPDF();

  protected:
    void Form_Load() override;

  private:
    void druckerZeigen(const QString &name);
    void ordnerWählen(const QString &ordner);
    void pbok_Click();

    Ui::frmPrinterPDF ui;
    QFileSystemModel mOrdner;
};
