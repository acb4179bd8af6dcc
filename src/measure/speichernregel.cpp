#include "measure/speichernregel.h"

Speichern speichernRegel(Messbox geändert, const SchrittTexte &schritt, bool bedient, bool eigene) {
    if (schritt.prüfart == Prüfart::Keine)
        return Speichern::Bleibt;
    const bool leistung = schritt.prüfart == Prüfart::Leistung;
    const bool voll = !schritt.ist_n_torvena.isEmpty() && !schritt.ist_D_torvena.isEmpty() &&
                      !schritt.ist_P_torvena.isEmpty() &&
                      (leistung || !schritt.ist_n_ergom.isEmpty());
    if (!voll && leistung && geändert == Messbox::n_ergom && !bedient)
        return Speichern::Bleibt;
    if (!voll || !eigene)
        return Speichern::Aus;
    const bool drehmoment = geändert == Messbox::D_torvena;
    if (!bedient && (leistung || drehmoment))
        return Speichern::Bleibt;
    return leistung && !drehmoment ? Speichern::EinMitTastatur : Speichern::Ein;
}
