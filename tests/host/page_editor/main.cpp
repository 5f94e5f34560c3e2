#include <cpl_error.h>
#include <gdiplus.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir settings;  // a person's own stay as they are
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    ::testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    CPLSetErrorHandler(CPLQuietErrorHandler);
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    if (Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
        return 1;
    }
    const int failed = RUN_ALL_TESTS();
    Gdiplus::GdiplusShutdown(token);
    return failed;
}
