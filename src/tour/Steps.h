#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "tour/Tour.h"
#include "tour/TourMachine.h"
#include "tour/TourPrinters.h"

// Where the walk finds its pictures and may write. What it opens through the file dialog lies among the
// samples.
struct CTourFiles {
    QString strPicture;     // a photograph that lies on its side longer than it is high
    QString strUpright;     // one that is higher than it is long
    QString strBroken;      // a file with a picture's name that is none
    QString strBrokenCopy;  // where a copy of it turns up during the walk
    QString strSaved;       // a name that is not there yet
    QString strPrinted;     // the same for a printed page

    QStringList arrSamples;  // names in the samples' folder, as the list has them
    QStringList arrFolders;  // names in a folder that holds only folders
    QString strFolder;       // one of these, which holds what follows
    QString strMixedFolder;  // its path
    QStringList arrMixed;    // all names in it
    QStringList arrGood;     // those of photographs
    QString strBrokenName;   // that of a file that is none
    QString strTrash;        // the trash's folder

    QString strTakeFolder;    // one of arrFolders, which is empty
    QString strTakePath;      // its path
    CTourPhone phone;         // with four files, one of them closed and one larger than its screen
    CTourPhone phoneCard;     // one with a memory card
    CTourPhone phoneRestart;  // one that restarts after an exchange
};

// The walk through the whole program in its order. Machine and printers outlive the steps.
std::vector<CTourStep> MakeSteps(const CTourFiles& files, CTourMachine& machine, CTourPrinters& printers);
