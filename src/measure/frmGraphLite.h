// The charts of the dynamic measurement: speed and power of the last values, each between its two
// lines.
#pragma once

#include "measure/band.h"
#include "measure/messring.h"
#include "platform/clock.h"
#include "session/screens.h"
#include "ui_frmGraphLite.h"
#include "windows/plot.h"

class frmGraphLite : public Screen {
  public:
    static constexpr frm id = frm::GraphLite;
    frmGraphLite();

    /// The stream is being read. Without a frame for some seconds of that the screen says so; while
    /// a box is open nothing is read, and nothing is missing.
    void liest() { mLiest = true; }
    void rahmen(); ///< one has come
    /// Shows the picture that is due.
    void fnc_GraphZeichnen(const Messring &ring);
    /// The scale that a person has chosen; the lines go along.
    void skalieren(Diagramm diagramm, const Band &skala);

    void showInfo(const QString &text) override;

  protected:
    void Form_Load() override;
    void Form_Unload() override;

  private:
    platform::Plot &plot(Diagramm diagramm) const;
    Achse &achse(Diagramm diagramm) { return mAchsen[std::size_t(diagramm)]; }
    const std::vector<double> &werte(Diagramm diagramm) const {
        return mWerte[std::size_t(diagramm)];
    }
    void einrichten(Diagramm diagramm);
    void fnc_GraphBandFüllen(Diagramm diagramm);
    void achseZeigen(Diagramm diagramm);
    void skalaErfragen(Diagramm diagramm);
    void bildSpeichern();
    void zahlenSpeichern();
    void gespeichert(const QString &pfad);

    Ui::frmGraphLite ui;
    std::array<Achse, 2> mAchsen{Achse(grafikband(Diagramm::Drehzahl)),
                                 Achse(grafikband(Diagramm::Leistung))};
    std::array<std::vector<double>, 2> mWerte; ///< shown, from the oldest on
    platform::Timer mStille;
    bool mLiest = false; ///< since the last tick
    int mOhneDaten = 0;  ///< s
};
