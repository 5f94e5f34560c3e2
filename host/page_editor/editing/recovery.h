#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "page/page.h"

namespace page_editor {

/// The unsaved work of one window, kept in a folder of the user's so that it survives a
/// crash or a power cut: a page file, and the file it belongs to. A lock distinguishes
/// the work of open windows from lost work.
class Recovery {
public:
    /// The user's: ~/.local/share/map_surround/page_editor/recovery on Linux.
    static QString Folder();

    /// The work in the folder that no window holds, oldest first. Each is locked for the
    /// caller until destroyed; no other process gets it meanwhile.
    static std::vector<std::unique_ptr<Recovery>> Lost(const QString& folder);

    /// Creates nothing yet.
    explicit Recovery(const QString& folder);

    /// Keeps a page in place of the previous one, completely or not at all. Throws
    /// std::runtime_error with the reason.
    /// @param file the page's own; empty for none
    /// @param stamp of that file, as last opened or saved (see StampOf)
    void Keep(const host::Page& page, const QString& file, const std::string& stamp);

    /// Removes what is kept.
    void Forget();

    QString PageFile() const { return m_path + ".json"; }
    const QString& File() const { return m_file; }
    const std::string& Stamp() const { return m_stamp; }
    QDateTime KeptAt() const;

private:
    QString NoteFile() const { return m_path + ".of"; }
    bool Claim();
    void ReadNote();

    QString m_path;  // without an ending
    std::unique_ptr<QLockFile> m_lock;
    QString m_file;
    std::string m_stamp;
    bool m_isNoted = false;
};

}  // namespace page_editor
