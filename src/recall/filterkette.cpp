#include "recall/filterkette.h"

void Filterkette::zurücksetzen() {
    *this = Filterkette(mArt);
}

void Filterkette::wählen(int position, const Filterwert &wert) {
    if (position == kundenfilter) {
        if (const Schlüssel kunde = einzigerKunde(wert.text))
            mFilterKundenID = kunde;
    }
    mWerte[static_cast<size_t>(position)] = wert;
    ++mFilterNr;
    mFilterAktiv = true;
    fnc_BuildArray(position);
}

void Filterkette::fnc_BuildArray(int position) {
    int &gewählt = mFilter[static_cast<size_t>(position)];
    if (gewählt == 0) {
        gewählt = mFilterNr;
        return;
    }
    for (int p = 0; p < filteranzahl; ++p) {
        if (rang(p) <= gewählt)
            continue;
        mFilter[static_cast<size_t>(p)] = 0;
        if (p == kundenfilter)
            mFilterKundenID = 0;
        mFilterNr = gewählt;
    }
    gewählt = mFilterNr;
}

Bedingungen Filterkette::bedingungen() const {
    Bedingungen alle;
    for (int p = 0; p < filteranzahl; ++p) {
        if (!inGebrauch(p))
            continue;
        const Filterposition &position = filterpositionen(mArt)[static_cast<size_t>(p)];
        Bedingung &bedingung = alle[static_cast<size_t>(p)];
        bedingung.text = position.bedingung;
        const auto datum = [this](const QDate &tag) {
            return changedate(mArt == Filterart::Wiedervorlage ? kalibriertFür(tag) : tag);
        };
        if (p == datumsfilter)
            bedingung.werte = {datum(wert(p).von), datum(wert(p).bis)};
        else if (p == kundenfilter)
            bedingung.werte = {mFilterKundenID};
        else if (position.liste == "cmbID")
            bedingung.werte = {wert(p).text.section(' ', 0, 0).toLongLong()};
        else
            bedingung.werte = {wert(p).text};
    }
    return alle;
}

Bedingung Filterkette::fnc_Where() const {
    Bedingung where;
    for (const Bedingung &bedingung : bedingungen()) {
        if (bedingung.text.isEmpty())
            continue;
        where.text += (where.text.isEmpty() ? "WHERE " : " AND") + bedingung.text;
        where.werte.insert(where.werte.end(), bedingung.werte.begin(), bedingung.werte.end());
    }
    return where;
}

QString Filterkette::fnc_OrderBy() const {
    const QString spalte = sortierspalte(mArt, mSortSpalte);
    if (spalte.isEmpty())
        return {};
    return " ORDER BY " + spalte + (mAufsteigend ? "" : " DESC");
}

Bedingung Filterkette::füllanweisung(int position) const {
    return listenanweisung(mArt, position, bedingungen(), mFilterAktiv);
}

QString changedate(const QDate &value) {
    return value.isValid() ? value.toString(Qt::ISODate) : QString();
}
