// The filled database takes the place of the one in use: checked first, then in steps of which
// each leaves a whole database under the name in use.
#pragma once

#include <vector>

#include "platform/text.h"
#include "store/rowcopy.h"

/// In the working directory, beside datenbankName.
inline constexpr const char *gefüllteDatenbank = "torvena470_empty.mdb"; ///< is filled by an update
inline constexpr const char *gelieferteDatenbank = "torvena470_neu.mdb"; ///< brought by an update
inline constexpr const char *abgelösteDatenbank = "ToDelete.mdb"; ///< of the one in use, swapping

/// What speaks against the filled file: damage, rows that were to be copied and are not there, rows
/// that the version leaves behind, references to nothing that led somewhere. Empty when nothing.
/// Raises what keeps the files from being read.
std::vector<platform::Text> checkFilled(const QString &used, const QString &filled,
                                        const CopyRecord &record);

/// The filled database gets the name of the one in use, which is deleted then, as is the delivered
/// file where `delivered` says so. Nobody may have them open. Raises PathAccess while the old
/// database is in use as before; PermissionDenied when the new one is in use already and a file
/// that is needed no more could not be deleted.
void swapDatabase(bool delivered);

/// Takes away what a stopped swap or copy has left over, once a whole database has been opened; one
/// without its name gets it back. What cannot be taken away stays for the next time.
void recoverDatabaseName();
void clearLeftovers();
