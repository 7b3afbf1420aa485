#pragma once

#include <QString>

namespace orvelle {

/// Removes what programs left beside a file that were ended while QSaveFile replaced it: files of this user's
/// with a name that QSaveFile makes, untouched for a minute. Who replaces the file holds the lock at
/// `lockPath`, so under it none of them is in use; while another program has it nothing is removed.
void removeAbandonedReplacements(const QString& filePath, const QString& lockPath);

} // namespace orvelle
