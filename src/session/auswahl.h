// The selection of the session as the desktop shows it: customer, unit, recipe. The keys stand in
// session.h. Screens that choose write here; the desktop listens.
#pragma once

#include <QString>

#include <functional>

struct Auswahl {
    QString kunde;
    QString gerät;   ///< type of the unit
    QString gerätID; ///< ident number of the unit
    QString rezept;
    QString normal; ///< name and serial number of the working standard
    QString datum;  ///< date of the session, dd.mm.yyyy
};

const Auswahl &auswahl();

/// Another customer than the chosen one takes the chosen unit away.
void kundeWählen(const QString &name);
void gerätWählen(const QString &typ, const QString &ident);
void rezeptWählen(const QString &name);
void normalZeigen(const QString &text);
void datumZeigen(const QString &text);

/// The one who shows the selection; called after every change.
void setAuswahlListener(std::function<void()> listener);

/// What the selection allows. Pure: the desktop applies it to its controls.
struct DesktopRegeln {
    bool gerät = false;      ///< choose a unit, enter a blood-pressure sheet
    bool secControl = false; ///< enter an electrical safety sheet
    bool messen = false;     ///< start a measurement
    bool nurGerät = false;   ///< no customer: the rule for measuring is not looked at
};
DesktopRegeln desktopRegeln(const Auswahl &wahl);
