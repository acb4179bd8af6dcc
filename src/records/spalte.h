// The first column of a query as a list of texts.
#pragma once

#include <QStringList>

#include "store/recordset.h"

inline QStringList spalte(const Recordset &rows) {
    QStringList texts;
    texts.reserve(rows.count());
    for (int row = 0; row < rows.count(); ++row)
        texts += rows.at(row, 0).toString();
    return texts;
}
