#include "page_editor/window/recent_files.h"

#include <QFileInfo>
#include <QSettings>

namespace page_editor {
namespace {

constexpr int kMostFiles = 8;
constexpr const char* kOrganisation = "map_surround";
constexpr const char* kProgram = "page_editor";
constexpr const char* kKey = "recentFiles";

QString Absolute(const QString& path) { return QFileInfo(path).absoluteFilePath(); }

void Keep(const QStringList& files) {
    QSettings(kOrganisation, kProgram).setValue(kKey, files);
}

}  // namespace

QStringList RecentFiles() {
    return QSettings(kOrganisation, kProgram).value(kKey).toStringList();
}

void AddRecentFile(const QString& path) {
    QStringList files = RecentFiles();
    files.removeAll(Absolute(path));
    files.prepend(Absolute(path));
    Keep(files.mid(0, kMostFiles));
}

void RemoveRecentFile(const QString& path) {
    QStringList files = RecentFiles();
    files.removeAll(Absolute(path));
    Keep(files);
}

}  // namespace page_editor
