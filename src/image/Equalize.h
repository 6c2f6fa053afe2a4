#pragma once

#include "image/PixelView.h"

// Histogram equalisation in place. The grey g = (117 B + 601 G + 306 R) >> 10 of every pixel is counted; with
// c the running sum of the counts, a luminance n becomes trunc((c[n] - c[0]) * 255 / (c[255] - c[0])) in
// double. Each pixel goes to YUV, Y is replaced, and back. A picture whose greys are all 0 stays as it is.
void EqualizeHistogram(CPixelView view);
