#pragma once

#include <QStringList>

namespace page_editor {

/// The page files last opened or saved, the latest first, kept in the user's settings.
QStringList RecentFiles();

/// Puts a file first.
void AddRecentFile(const QString& path);

/// Forgets a file that no longer exists.
void RemoveRecentFile(const QString& path);

}  // namespace page_editor
