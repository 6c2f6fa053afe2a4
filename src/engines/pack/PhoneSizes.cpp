#include "engines/pack/PhoneSizes.h"

#include <algorithm>
#include <limits>

namespace {

bool IsWithin(CSize size, CSize sizeBox) {
    return size.cx <= sizeBox.cx && size.cy <= sizeBox.cy;
}

int Side(std::int64_t n) {
    return static_cast<int>(std::clamp<std::int64_t>(n, 1, std::numeric_limits<int>::max()));
}

// The size of proportions as the picture's that is as wide as the box or as high as it. Only a picture at
// least as high as the box is measured by its longer side; a lower one always takes the width.
CSize InProportion(CSize sizePicture, CSize sizeBox) {
    const std::int64_t nWidth = Side(sizePicture.cx);
    const std::int64_t nHeight = Side(sizePicture.cy);
    if (nHeight >= sizeBox.cy && nWidth <= nHeight)
        return {Side(sizeBox.cy * nWidth / nHeight), Side(sizeBox.cy)};
    return {Side(sizeBox.cx), Side(sizeBox.cx * nHeight / nWidth)};
}

}  // namespace

bool FitsPhone(CSize sizePicture, std::span<const CSize> sizes) {
    return !sizes.empty() && IsWithin(sizePicture, sizes.front());
}

CSize LargestPhoneSize(std::span<const CSize> sizes) {
    if (sizes.empty()) return {};
    return sizes.back().cx > sizes.front().cx ? sizes.back() : sizes.front();
}

bool IsPhoneSize(CSize size, std::span<const CSize> sizes) {
    return std::ranges::find(sizes, size) != sizes.end();
}

bool IsAboveFileLimit(std::int64_t nStored, std::int64_t nAdded, int nMost) {
    return nMost != -1 && nStored + nAdded > nMost;
}

CSize ThumbBox(CSize sizePhoneThumb) {
    const bool bLarger = sizePhoneThumb.cx > kLargeThumb.cx && sizePhoneThumb.cy > kLargeThumb.cy;
    return bLarger ? kLargeThumb : sizePhoneThumb;
}

CThumbPlan PlanThumb(CSize sizePicture, CSize sizeBox, std::span<const CSize> sizes) {
    if (IsWithin(sizePicture, sizeBox)) return {sizePicture, false};
    if (sizeBox == kPhoneScreen && IsPhoneSize(sizePicture, sizes))
        return {kPhoneScreen, IsWithin(kTwoStagePicture, sizePicture)};
    return {InProportion(sizePicture, sizeBox), false};
}
