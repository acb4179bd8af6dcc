// What the main window shows: selection, standard, lever arm, motor, in either language.
#include "app/frmDesktop.h"

#include "link/motorlampe.h"
#include "platform/clock.h"
#include "records/hebelarm.h"
#include "session/auswahl.h"
#include "session/session.h"
#include "session/sprache.h"
#include "store/sqltext.h"
#include "windows/stil.h"

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
    {"mnuNachweis", "Audit &Trail ..."},
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
    {"mnuÜber", "&About torvena ..."},
    {"pbFortsetzen", "&Go On"},
    {"FrAuswahl", "Selection"},
    {"lbPrüfer", "Inspector:"},
    {"lbDatum", "Date:"},
    {"lbKunde", "Customer:"},
    {"lbGerät", "Unit:"},
    {"lbGerätID", "ID number:"},
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
    {"FrMessen", "Measuring And Protocols"},
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
    beschriften();
}

void frmDesktop::hebelarmZeigen() {
    const QDate heute = now().date();
    ui.ProgressBar1->setValue(hebelarmRest(gHebelarmDatum, gHebelarmFällig, heute));
    const bool überfällig = heute > gHebelarmFällig;
    setTon(ui.FrHebelarm, überfällig ? Ton::Alarm : Ton::Keiner);
    setTon(ui.ProgressBar1, überfällig ? Ton::Alarm : Ton::Keiner);
    ui.anzHebelarm->setVisible(überfällig);
    if (spracheGewählt())
        ui.FrHebelarm->setTitle(inSprache({"Nächste Hebelarmkalibrierung fällig am ",
                                           "Next lever arm calibration due on "}) +
                                datumText(gHebelarmFällig));
}

void frmDesktop::beschriften() {
    beschriftungenSetzen(ui, *this, english);
    setCaption(gProduktTitel);
    ui.anzHebelarm->zeige(Zeichen::Achtung, inSprache({"überfällig", "overdue"}));
    motorbilderZeigen();
    unterbrechungZeigen();
    hebelarmZeigen();
    mErsterTag.zeigen(mUnterbrechung.has_value());
    if (spracheGewählt())
        normalZeigen(gNKGerätetyp + " SerienNr. " + gSeriennummer);
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
    for (QLineEdit *feld : {ui.txtKunde, ui.txtGerät, ui.txtGerätID, ui.txtRezept, ui.txtRezName})
        feld->setCursorPosition(0); // a long name shows its start
}

void frmDesktop::showMotorInfo(const QString &text) {
    mMotorInfo = text;
    mMeldetEin = false;
    infoZeigen();
}

void frmDesktop::showMotorEin(const QString &text) {
    showMotorInfo(text);
    mMeldetEin = true;
}

void frmDesktop::showWelle() {
    if (!gMotorEin && mMeldetEin)
        showMotorInfo({});
    motorbilderZeigen();
    wegZeigen();
}

void frmDesktop::showDrehrichtung(const QString &wort) {
    ui.lbDrehrichtung->setText(wort);
    motorbilderZeigen();
    wegZeigen();
}

void frmDesktop::showEinlauf(const QString &rest) {
    ui.lbEinlauf->setText(rest);
    wegZeigen();
}

void frmDesktop::motorbilderZeigen() {
    motorZeigen(*ui.anzMotor);
    richtungZeigen(*ui.anzDrehrichtung);
}

void frmDesktop::infoZeigen() {
    QStringList lines{mMotorInfo};
    if (gDatenbankzustand == Datenbankzustand::Beschädigt)
        lines += inSprache({"Messen ist gesperrt: Die Datenbank ist beschädigt. Bitte starten Sie "
                            "das Programm neu.",
                            "Measuring is locked: the database is damaged. Please restart the "
                            "program."});
    else if (mKorrekturFehlt)
        lines += inSprache({"Messen ist gesperrt. Bitte Kunde, Gerät oder Rezept neu wählen.",
                            "Measuring is locked. Please choose customer, unit or recipe again."});
    lines.removeAll(QString());
    ui.laInfo->setText(lines.join('\n'));
}
