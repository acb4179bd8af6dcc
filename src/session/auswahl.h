// The selection of the session as the desktop shows it: customer, unit, recipe. The keys stand in
// session.h. Screens that choose write here; the desktop listens.
#pragma once

#include <QString>

#include <functional>

#include "session/session.h"

struct Auswahl {
    QString kunde;
    QString gerät;   ///< type of the unit
    QString gerätID; ///< ident number of the unit
    QString rezept;
    QString normal; ///< name and serial number of the working standard
    QString datum;  ///< date of the session, dd.mm.yyyy
};

const Auswahl &auswahl();

/// Another customer than the chosen one takes the chosen unit away. Sets gKundenID, and gGerätID
/// to 0 then.
void kundeWählen(const QString &name, Schlüssel kundenID);
/// The chosen customer is called otherwise now; the unit stays. This is no choice.
void kundeUmbenennen(const QString &name);
/// The chosen customer is gone, and the unit with it. Sets gKundenID and gGerätID to 0.
void kundeAbwählen();
void gerätWählen(const QString &typ, const QString &ident);
/// The chosen unit is called otherwise now. This is no choice, unless it has an ident number only
/// now, or none any more.
void gerätUmbenennen(const QString &typ, const QString &ident);
/// The chosen unit is gone. Sets gGerätID to 0.
void gerätAbwählen();

struct RezeptKopf {
    Schlüssel rezeptID = 0;
    Schlüssel toleranzID = 0;
    QString toleranz; ///< name of the specification
    QString messverfahren;
};
/// A recipe to be looked at or changed: into gRezeptID, gToleranzID, gRezeptName, gMessverfahren.
void rezeptEinsetzen(const RezeptKopf &kopf);
/// The recipe that was put there last is the chosen one; without a name there is none.
void rezeptWählen(const QString &name);
/// The chosen recipe reads like this now, and is put there. This is no choice.
void rezeptErneuern(const RezeptKopf &kopf);
/// Puts the chosen recipe there as it was chosen, whichever was looked at meanwhile.
void rezeptZurückholen();

void normalZeigen(const QString &text);
void datumZeigen(const QString &text);

/// The one who shows the selection: `zeigen` is called after every change, `wahl` besides when
/// customer, unit or recipe were chosen.
void setAuswahlListener(std::function<void()> zeigen, std::function<void()> wahl);

/// What the selection allows, and a database that is not damaged. Pure: the desktop applies it to
/// its controls.
struct DesktopRegeln {
    bool gerät = false;      ///< choose a unit, enter a blood-pressure sheet
    bool secControl = false; ///< enter an electrical safety sheet
    bool messen = false;     ///< start a measurement
    bool ohneKunde = false;  ///< then nothing is said about measuring
    bool prüfstand = false;  ///< calibrate, or go to the final test; else nothing is measured
};
DesktopRegeln desktopRegeln(const Auswahl &wahl);
