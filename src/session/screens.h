// Every screen of the program by name. The classes behind the names are bound in app/screens.cpp
// alone, so that a low floor can show a high screen without knowing it.
#pragma once

#include "windows/screen.h"

enum class frm {
    // start-up and desktop
    Splash,
    Login,
    Desktop,
    MotorDrehR,
    Meldung1,
    Refresh,
    Über,
    // link
    Interface,
    SecondInterface,
    Einlaufen,
    // master data
    Kunden,
    NeuKunde,
    ÄndKund,
    LöschKunde,
    Gerät,
    NeuGerät,
    ÄndGerät,
    LöschGerät,
    Rezepte,
    NeuRezept,
    ÄndRez,
    RezeptKopie,
    Toleranzen,
    // measurement
    StatMessen,
    VorStatNPK,
    NachStatNPK,
    Messen,
    Meldung,
    GraphLite,
    SetScale,
    // calibration of the stand
    Kalibrierung,
    MomentKal,
    Oberfl,
    History,
    // protocols
    ProtokollNr,
    ProtokollNr_1,
    Blutdruck,
    BlutdruckAbfrage,
    SecControl,
    Bericht,
    Bericht1,
    PrinterPDF,
    BerichtSichern,
    Sort,
    DeleteExtended,
    Nachweis,
    // final test
    Endprüf,
    EPRezepte,
    EPÄndRez,
    EPNeuRezept,
    EPListe,
    Test,
};

/// The one instance, made and loaded on first use.
inline Screen &form(frm name) {
    return platform::screenWithId(static_cast<int>(name));
}

/// The instance if it is loaded.
inline Screen *loaded(frm name) {
    return platform::loadedScreen(static_cast<int>(name));
}

/// True when a class is bound to the name.
inline bool exists(frm name) {
    return platform::screenExists(static_cast<int>(name));
}

// Typed access, for the own floor and below: each class says `static constexpr frm id`.
template <class S>
S &form() {
    return static_cast<S &>(form(S::id));
}

template <class S>
S *loaded() {
    return static_cast<S *>(loaded(S::id));
}

/// `name` is that of the class.
template <class S>
void bindScreen(const char *name) {
    platform::registerScreen(static_cast<int>(S::id), QString::fromUtf8(name),
                             [] { return std::make_unique<S>(); });
}
