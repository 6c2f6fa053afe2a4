#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

#include "qt/Application.h"

// Runs on the invisible screen unless told otherwise; in a window the tests would depend on where the mouse
// is.
int main(int nArguments, char** arrArguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    // Nor do they read or leave settings among the user's.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    // Printers are those that a test sets up.
    qputenv("CUPS_SERVER", "/nowhere");
    testing::InitGoogleTest(&nArguments, arrArguments);
    QApplication application(nArguments, arrArguments);
    SetUpApplication(application);
    return RUN_ALL_TESTS();
}
