#pragma once

class QApplication;

// What main() and whatever else shows the real window set up before anything is shown: names, style, colours,
// fonts, Qt's own texts in Chinese, the icon.
void SetUpApplication(QApplication& application);
