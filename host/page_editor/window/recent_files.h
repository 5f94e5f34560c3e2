#pragma once

#include <QStringList>

namespace page_editor {

/// The page files that were opened or saved last, the latest first, kept among the
/// person's settings.
QStringList RecentFiles();

/// Puts a file first.
void AddRecentFile(const QString& path);

/// Forgets a file that is there no more.
void RemoveRecentFile(const QString& path);

}  // namespace page_editor
