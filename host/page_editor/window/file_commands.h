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
/// is reported in one line and changes nothing.
class FileCommands : public QObject {
    Q_OBJECT
public:
    /// @param document, window outlive this; dialogs stand before the window
    FileCommands(PageDocument& document, QWidget& window);

    /// The page's file; empty for a page without one.
    const QString& Path() const { return m_path; }
    /// What it held when it was opened or saved last (see StampOf).
    const std::string& Stamp() const { return m_stamp; }

    /// Asks what to do with unsaved work, when there is some.
    /// @return whether the page may go
    bool MayDiscard();

    /// Each asks about unsaved work first, and for a name where none is given.
    void New();
    void Open();
    /// @param paths a page file, or rasters to lay a page out around
    /// @param mayAsk whether somebody is there to allow a page file more than is safe
    bool OpenFiles(const QStringList& paths, bool mayAsk = true);
    /// Opens work that was lost, in place of the page: unsaved work on its file.
    bool OpenLost(const Recovery& lost);

    /// Saves into the page's file, and asks first where that has been changed by others.
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
    /// Asks whether a page file may have read what it may not by itself.
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
