#include <QApplication>

#include "app/MainApp.h"
#include "qt/Application.h"
#include "qt/QtPlatform.h"
#include "qt/ResourceFolders.h"
#include "resources/BitmapStore.h"

int main(int nArguments, char** arrArguments) {
    QApplication application(nArguments, arrArguments);
    SetUpApplication(application);
    CBitmapStore bitmaps(SkinFolder());
    const CQtPlatform platform(bitmaps);
    CMainApp app(platform.Platform());
    app.InitInstance();
}
