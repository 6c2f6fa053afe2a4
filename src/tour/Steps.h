#pragma once

#include <QString>
#include <vector>

#include "tour/Tour.h"

// Where the walk finds its pictures and may write.
struct CTourFiles {
    QString strPicture;  // a photograph that lies on its side longer than it is high
    QString strUpright;  // one that is higher than it is long
    QString strBroken;   // a file with a picture's name that is none
    QString strSaved;    // a name that is not there yet
};

// The walk through the whole program in its order.
std::vector<CTourStep> MakeSteps(const CTourFiles& files);
