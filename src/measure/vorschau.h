// What the strip over the verdict shows, decided without a widget: which of its states, how far the
// speed still is, what a finished recipe adds up to, how old the values are.
#pragma once

#include <vector>

#include "measure/bewertung.h"

/// What would be stored if the step were saved now.
struct Vorschau {
    struct Vergleich {
        QString was;     ///< "Abweichung: Normal P − Soll P"
        QString einheit; ///< of the distance
        Abstand abstand;
        bool operator==(const Vergleich &) const = default;
    };
    struct Urteilswort {
        QString kopf; ///< of the column that takes it
        Spruch spruch;
        QString wort; ///< as it would stand there
        bool operator==(const Urteilswort &) const = default;
    };
    std::vector<Vergleich> vergleiche; ///< one, or power and speed; none: nothing can be judged
    Spruch spruch = Spruch::Offen;     ///< the one that counts
    std::vector<Urteilswort> wörter;
    bool operator==(const Vorschau &) const = default;
};
Vorschau::Vergleich leistungsVergleich(const Abstand &abstand);
Vorschau::Vergleich drehzahlVergleich(const Abstand &abstand);

/// What goes on around the boxes.
enum class Phase {
    Ruht,        ///< nothing is measured
    Eingabe,     ///< set-points are being typed
    Ungesendet,  ///< those shown have not been sent
    Misst,       ///< those shown are driven
    Abgearbeitet ///< the recipe has ended, and nothing else was asked for
};
enum class Streifen { Leer, Eingeben, Senden, Messwerte, Anlauf, Ablesung, Urteil, Summe };
Streifen streifen(Phase phase, const SchrittTexte &schritt, bool bedient);
/// In the language of the session; empty for Leer, Urteil and Summe.
QString streifenText(Streifen streifen);

/// How far the speed of the standard still has to go, 1/min, below 0 downwards: as long as it is
/// more than 1 1/min away. 0 when it has come, or nothing has been measured yet.
double anlauf(const SchrittTexte &schritt);

/// The verdicts of stored rows.
struct Summe {
    int ja = 0, offen = 0, nein = 0;
    std::optional<Spruch> schlimmster() const;
    QString text() const; ///< in the language of the session
};
Summe summe(const QStringList &wörter);

/// A result comes with each six turns: how much of that time is over.
struct Taktstand {
    double anteil = 0; ///< 0 to 1
    bool überfällig = false;
};
/// At `drehzahl` 1/min, above 0, `alter` ms after the last result.
Taktstand taktstand(double drehzahl, double alter);
