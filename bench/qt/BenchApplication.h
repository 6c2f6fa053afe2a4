#pragma once

#include <QApplication>

#include "qt/Application.h"

// Qt as the program sets it up, for a benchmark; on no screen unless the environment names one.
class CBenchApplication {
  public:
    CBenchApplication() { SetUpApplication(m_application); }

  private:
    static int& Arguments() {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        static int s_nArguments = 1;
        return s_nArguments;
    }
    static char** Words() {
        static char s_szProgram[] = "bench_qt";
        static char* s_arrWords[] = {s_szProgram, nullptr};
        return s_arrWords;
    }

    QApplication m_application{Arguments(), Words()};
};
