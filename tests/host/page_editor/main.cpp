#include <cpl_error.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "page_editor/editing/file_jobs.h"
#include "page_editor/editor_fixture.h"
#include "page_editor/trap_raster.h"
#include "raster_data/gdal_session.h"
#include "system/gdiplus_session.h"
#include "system/helper_process.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C");        // new elements speak English
    const QTemporaryDir settings;  // a person's own stay as they are
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    qputenv("XDG_DATA_HOME", settings.path().toUtf8());
    ::testing::InitGoogleTest(&argc, argv);
    CPLSetErrorHandler(CPLQuietErrorHandler);
    host::StartGdal();
    editor_tests::RegisterTraps();
    host::Jobs jobs = editor_tests::TestJobs();
    jobs.merge(page_editor::FileJobs());
    host::StartHelper(jobs);
    const QApplication application(argc, argv);
    const host::GdiplusSession gdiplus;
    return RUN_ALL_TESTS();
}
