#include "page_editor/editing/recovery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUuid>
#include <stdexcept>

#include "page/document/opened_page.h"
#include "system/errors.h"

namespace page_editor {
namespace {

constexpr QFile::Permissions kOwnersAlone =
    QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

[[noreturn]] void Fail(const QString& file) {
    throw host::NamedError(file.toStdString(), "cannot be written");
}

}  // namespace

QString Recovery::Folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           "/map_surround/page_editor/recovery";
}

std::vector<std::unique_ptr<Recovery>> Recovery::Lost(const QString& folder) {
    std::vector<std::unique_ptr<Recovery>> lost;
    for (const QFileInfo& page : QDir(folder).entryInfoList(
             {"*.json"}, QDir::Files, QDir::Time | QDir::Reversed)) {
        auto found = std::make_unique<Recovery>(folder);
        found->m_path = page.path() + '/' + page.completeBaseName();
        if (found->Claim()) {
            found->ReadNote();
            lost.push_back(std::move(found));
        }
    }
    return lost;
}

Recovery::Recovery(const QString& folder)
    : m_path(folder + '/' + QUuid::createUuid().toString(QUuid::WithoutBraces)) {}

/// A lock never expires, but it ends with its process.
bool Recovery::Claim() {
    if (m_lock == nullptr) {
        m_lock = std::make_unique<QLockFile>(m_path + ".lock");
        m_lock->setStaleLockTime(0);
    }
    return m_lock->isLocked() || m_lock->tryLock(0);
}

void Recovery::Keep(const host::Page& page, const QString& file,
                    const std::string& stamp) {
    const QString folder = QFileInfo(m_path).path();
    if (!QDir().mkpath(folder) || !QFile::setPermissions(folder, kOwnersAlone) ||
        !Claim()) {
        Fail(folder);
    }
    if (!m_isNoted || file != m_file || stamp != m_stamp) {
        QSaveFile note(NoteFile());
        if (!note.open(QIODevice::WriteOnly) ||
            note.write(QByteArray::fromStdString(stamp) + '\n' + file.toUtf8()) < 0 ||
            !note.commit()) {
            Fail(NoteFile());
        }
        m_file = file;
        m_stamp = stamp;
        m_isNoted = true;
    }
    host::SavePageFile(page, PageFile().toStdString());
}

void Recovery::Forget() {
    if (m_lock != nullptr && m_lock->isLocked()) {
        QFile::remove(PageFile());
        QFile::remove(NoteFile());
        m_lock->unlock();
        m_isNoted = false;
    }
}

QDateTime Recovery::KeptAt() const { return QFileInfo(PageFile()).lastModified(); }

void Recovery::ReadNote() {
    QFile note(NoteFile());
    if (note.open(QIODevice::ReadOnly)) {
        m_stamp = note.readLine().trimmed().toStdString();
        m_file = QString::fromUtf8(note.readAll());
        m_isNoted = true;
    }
}

}  // namespace page_editor
