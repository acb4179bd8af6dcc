// What the main window shows: selection, standard, lever arm, motor, in either language.
#include "app/frmDesktop.h"

#include "platform/clock.h"
#include "records/normal.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/sqltext.h"

using namespace platform;

namespace {

constexpr Beschriftung english[] = {
    {"mnuDatei", "&Program"},
    {"mnuStammdaten", "&Master Data"},
    {"mnuMessung", "Me&asurement"},
    {"mnuProtokolle", "P&rotocols"},
    {"mnuSprache", "&Language"},
    {"mnuHilfe", "&Help"},
    {"mnuKunden", "&Customers"},
    {"mnuGerät", "&Unit"},
    {"mnuRezept", "&Choose Recipe"},
    {"mnuRezepte", "&Recipes"},
    {"mnuStartMessen", "&Start Measuring"},
    {"mnuProtokoll", "&Print Protocol"},
    {"mnuProtVerw", "Protocol &Administration"},
    {"mnuToleranzen", "&Specifications"},
    {"mnuRoute", "Recall &List"},
    {"mnuUpdate", "&Update Database"},
    {"mnuPDF", "&PDF Printer"},
    {"mnuSSParameter", "&Interface"},
    {"mnuEinlaufen", "&Running-in Parameters"},
    {"mnuKalibrierung", "&Lever Arm Calibration"},
    {"mnuBeenden", "&Exit"},
    {"mnuDeutsch", "&German"},
    {"mnuEnglisch", "&English"},
    {"mnuHelp", "&Help"},
    {"FrAuswahl", "Selection"},
    {"lbPrüfer", "Inspector:"},
    {"lbDatum", "Date:"},
    {"lbKunde", "Customer:"},
    {"lbGerät", "Unit:"},
    {"lbGerätID", "Ident no.:"},
    {"lbRezept", "Recipe:"},
    {"lbRezName", "Specification:"},
    {"lbNormal", "Standard:"},
    {"lbKalDat", "calibrated until:"},
    {"pbKunde", "&Customer"},
    {"pbGerät", "&Unit"},
    {"pbRezept", "Rec&ipe"},
    {"FrMotor", "Motor"},
    {"lbDrehrichtungText", "Direction of rotation:"},
    {"lbEinlaufText", "Running-in time left:"},
    {"pbDrehR", "&Direction"},
    {"pbMotein", "Motor O&N"},
    {"pbMotaus", "Motor O&FF"},
    {"FrMessen", "Measuring and Protocols"},
    {"pbMessen", "&Start Measuring"},
    {"pbProtokoll", "Pr&otocol"},
    {"pbBlutdruck", "&Blood Pressure"},
    {"pbSecControl", "Safet&y (EST)"},
    {"pbReset", "Rese&t"},
    {"pbEndprüf", "Final T&est"},
    {"pbBeenden", "E&xit"},
};

} // namespace

void frmDesktop::normalUndHebelarmZeigen() {
    ui.txtKalDat->setText(datumText(gKalibrierdatum));
    const QDate heute = now().date();
    ui.ProgressBar1->setValue(hebelarmRest(gHebelarmDatum, gHebelarmFällig, heute));
    beschriften();
    QPalette palette;
    if (heute > gHebelarmFällig)
        palette.setColor(QPalette::WindowText, QColor(255, 0, 0));
    ui.FrHebelarm->setPalette(palette);
}

void frmDesktop::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    setCaption(gProduktTitel);
    if (!spracheGewählt())
        return;
    normalZeigen(gNKGerätetyp + " SerienNr. " + gSeriennummer);
    ui.FrHebelarm->setTitle(inSprache({"Nächste Hebelarmkalibrierung fällig am ",
                                       "Next lever arm calibration due on "}) +
                            datumText(gHebelarmFällig));
}

void frmDesktop::auswahlZeigen() {
    const Auswahl &wahl = auswahl();
    ui.txtKunde->setText(wahl.kunde);
    ui.txtGerät->setText(wahl.gerät);
    ui.txtGerätID->setText(wahl.gerätID);
    ui.txtRezept->setText(wahl.rezept);
    ui.txtRezName->setText(wahl.rezept.isEmpty() ? QString() : gRezeptName);
    ui.txtNormal->setText(wahl.normal);
    ui.txtDatum->setText(wahl.datum);
}

void frmDesktop::showMotorInfo(const QString &text) {
    mMotorInfo = text;
    infoZeigen();
}

void frmDesktop::infoZeigen() {
    QStringList lines{mMotorInfo};
    if (mKorrekturFehlt)
        lines += inSprache({"Messen ist gesperrt. Bitte Kunde, Gerät oder Rezept neu wählen.",
                            "Measuring is locked. Please choose customer, unit or recipe again."});
    lines.removeAll(QString());
    ui.laInfo->setText(lines.join('\n'));
}
