#include "page_editor/editing/file_stamp.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace page_editor {

std::string StampOf(const std::string& path) {
    QFile file(QString::fromStdString(path));
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const bool isRead =
        QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly) && hash.addData(&file);
    return isRead ? hash.result().toHex().toStdString() : std::string();
}

}  // namespace page_editor
