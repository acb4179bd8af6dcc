#include "app/erstertag.h"

#include <QFile>
#include <QHBoxLayout>

#include "platform/fehler.h"
#include "session/session.h"
#include "session/sprache.h"
#include "windows/stil.h"

using namespace platform;

namespace {

/// Beside the database: it stays with it, and changes nothing in it.
constexpr auto merkdatei = ".torvena.ersterTag";

constexpr int anzahl = 5;

Text worte(Anfang anfang) {
    switch (anfang) {
    case Anfang::Normal:
        return {
            "die Kalibrierdaten des Normals. Sie kommen mit einer Update-Datei, die sie enthält; "
            "wie, sagt die Hilfe unter \"Erste Schritte\".",
            "the calibration data of the standard. They come with an update file that holds them; "
            "the help tells how under \"First Steps\"."};
    case Anfang::Kunde:
        return {"ein Kunde. Er wird mit \"Neu\" eingetragen.",
                "a customer, who is entered by \"New\"."};
    case Anfang::Gerät:
        return gKundenID > 0 ? Text{"ein Gerät des gewählten Kunden.", "a unit of the chosen "
                                                                       "customer."}
                             : Text{"ein Gerät. Wählen Sie seinen Kunden, dann führt die Frage "
                                    "nach dem Gerät weiter.",
                                    "a unit. Choose its customer, then the question for the unit "
                                    "leads on."};
    case Anfang::Spezifikation:
        return {"eine Spezifikation: die zulässigen Abweichungen.",
                "a specification: the permissible deviations."};
    case Anfang::Rezept:
        return {"ein Rezept: die Prüfschritte mit Drehzahl und Leistung.",
                "a recipe: the test steps with speed and power."};
    }
    return {};
}

} // namespace

std::optional<Anfang> nächsterAnfang(const Grundbestand &bestand) {
    for (const auto &[da, anfang] : {std::pair{bestand.normal, Anfang::Normal},
                                     {bestand.kunde, Anfang::Kunde},
                                     {bestand.gerät, Anfang::Gerät},
                                     {bestand.spezifikation, Anfang::Spezifikation},
                                     {bestand.rezept, Anfang::Rezept}}) {
        if (!da)
            return anfang;
    }
    return {};
}

ErsterTag::ErsterTag() {
    setObjectName("FrErsterTag");
    setFrameShape(QFrame::StyledPanel);
    mText.setObjectName("lbErsterTag");
    mText.setWordWrap(true);
    mÖffnen.setObjectName("pbErsterTag");
    mAusblenden.setObjectName("pbErsterTagAus");
    auto *zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(8, 4, 8, 4);
    zeile->setSpacing(8);
    zeile->addWidget(&mText, 1);
    for (QPushButton *knopf : {&mÖffnen, &mAusblenden}) {
        knopf->setAutoDefault(true);
        knopf->setMinimumSize(136, 32);
        zeile->addWidget(knopf);
    }
    hide();
}

QAction *ErsterTag::ziel() const {
    if (mNächster == Anfang::Gerät && gKundenID == 0)
        return mZiele.at(Anfang::Kunde);
    return mZiele.at(mNächster.value_or(Anfang::Kunde));
}

void ErsterTag::zeigen(bool vergeben) try {
    mÖffnen.setText(inSprache({"&Jetzt eintragen", "Enter No&w"}));
    mAusblenden.setText(inSprache({"Hinwe&is ausblenden", "Hide Fore&ver"}));
    mErledigt = mErledigt || QFile::exists(merkdatei);
    mNächster = mErledigt ? std::nullopt : nächsterAnfang(grundbestandLesen());
    mErledigt = !mNächster;
    if (mNächster) {
        mText.setText(inSprache({"Vor der ersten Messung fehlt noch (%1 von %2): ",
                                 "Still missing before the first measurement (%1 of %2): "})
                          .arg(static_cast<int>(*mNächster) + 1)
                          .arg(anzahl) +
                      inSprache(worte(*mNächster)));
    }
    setVisible(mNächster && !vergeben);
} catch (const Fehler &fehler) {
    fehlerMerken(fehler);
    hide();
}

// Where the file cannot be written it comes again with the next start.
void ErsterTag::fürImmerAusblenden() {
    [[maybe_unused]] const bool gemerkt = QFile(merkdatei).open(QIODevice::WriteOnly);
    mErledigt = true;
    zeigen();
}
