#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <memory>
#include <string>
#include <vector>

#include "page/page.h"

namespace page_editor {

/// The unsaved work of one window, kept in a folder of the person's own so that it is
/// there after a crash or a power cut: a page file, and what it is the work on. A lock
/// tells the work of windows that live from what was lost.
class Recovery {
public:
    /// The person's: ~/.local/share/map_surround/page_editor/recovery on Linux.
    static QString Folder();

    /// What is in the folder and of no window any more, the oldest first. Each is this
    /// caller's until it is destroyed; no other process gets it meanwhile.
    static std::vector<std::unique_ptr<Recovery>> Lost(const QString& folder);

    /// Makes nothing yet.
    explicit Recovery(const QString& folder);

    /// Keeps a page in place of what was kept before, whole or not at all. Throws
    /// std::runtime_error with the reason.
    /// @param file the page's own; empty for none
    /// @param stamp of that file, as it was opened or saved last (see StampOf)
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
