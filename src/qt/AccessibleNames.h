#pragma once

#include <QString>
#include <string_view>

// What a screen reader says for a control that shows only a picture, by the root of the picture's name. Empty
// for a root that has no name here.
QString FindAccessibleName(std::string_view strRoot);

// The same for a row of a list that shows only a picture, by the picture's name: the effect that it stands
// for.
QString FindEffectName(std::string_view strPicture);
