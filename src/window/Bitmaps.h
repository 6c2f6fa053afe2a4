#pragma once

#include <string>

class CxImage;

// The pictures of the skin by name: a resource number in digits, or a button's caption in upper case with the
// letter of the state behind it.
class CBitmaps {
  public:
    virtual ~CBitmaps() = default;
    // Density 1 gives the picture in its size, 2 the same at twice the width and height. Null if there is no
    // picture of that name. The picture stays valid as long as this object.
    virtual const CxImage* Find(const std::string& strName, int nDensity) = 0;
};
