#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <string>

#include "page/document/opened_page.h"
#include "page/output/map_images.h"
#include "page_editor/editing/page_document.h"
#include "page_editor/editing/recovery.h"

namespace page_editor {

/// Opening, saving and exporting the page, with the questions that go with it. A failure
/// is reported on one line and changes nothing.
class FileCommands : public QObject {
    Q_OBJECT
public:
    /// @param document, window outlive this; the window is the parent of dialogs
    FileCommands(PageDocument& document, QWidget& window);

    /// The page's file; empty for a page without one.
    const QString& Path() const { return m_path; }
    /// The state of that file when it was last opened or saved (see StampOf).
    const std::string& Stamp() const { return m_stamp; }

    /// Asks what to do with unsaved work, if there is any.
    /// @return whether the page may be closed
    bool MayDiscard();

    /// Each asks about unsaved work first, and for a name if none is given.
    void New();
    void Open();
    /// @param paths a page file, or rasters to lay a page out around
    /// @param mayAsk whether the user can be asked to allow a page file more than is safe
    bool OpenFiles(const QStringList& paths, bool mayAsk = true);
    /// Opens lost work in place of the page: unsaved work on its file.
    bool OpenLost(const Recovery& lost);

    /// Saves into the page's file, and asks first if others have changed it.
    bool Save();
    bool SaveAs();
    bool SaveTo(const QString& path);

    void Export();
    bool ExportTo(const QString& path, double dpi,
                  host::MapImages mapImages = host::MapImages::Lossless);

Q_SIGNALS:
    void PathChanged();
    void Failed(const QString& why);
    void Succeeded();
    /// What was done, or could not be done as asked.
    void Told(const QString& what);

private:
    /// Asks whether a page file may read something that it may not by default.
    bool MayRead(const std::string& what);
    bool Show(const std::function<host::OpenedPage()>& open);
    bool Attempt(const std::function<void()>& step);
    QString WhyNot(const QString& file);
    void SetPath(const QString& path, const std::string& stamp);

    PageDocument& m_document;
    QWidget& m_window;
    QString m_path;
    std::string m_stamp;
};

}  // namespace page_editor
