#include "records/epliste.h"

#include "records/schluessel.h"
#include "store/database.h"

std::vector<EPZeile> epListe() {
    std::vector<EPZeile> liste;
    for (Recordset row = gDatenbank.open(
             "SELECT EP_ID, SerienNr, Prüfdatum, Gerätetyp, Kunde, count(M.ProtokollID), "
             "total(M.Toleranz = 'OK'), "
             "total(M.ProtokollID IS NOT NULL AND IFNULL(M.Toleranz, '') = '') "
             "FROM EP LEFT JOIN EP_Messwerte M ON M.ProtokollID = EP_ID "
             "GROUP BY EP_ID ORDER BY EP_ID DESC");
         !row.atEnd(); row.moveNext()) {
        liste.push_back({schlüsselAus(row[0]), row[1].text(), row[2].text(), row[3].text(),
                         row[4].text(), row[5].whole(), row[6].whole(), row[7].whole()});
    }
    return liste;
}
