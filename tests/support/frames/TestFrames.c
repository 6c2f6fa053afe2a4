/* A library of frames for tests. Frame N is one colour, red 10 N, green 20 N, blue N, around a box of the
 * key. WITHOUT names a frame whose function is not there, NULL_RECORD one whose function has no record. */

enum { kWidth = 640, kHeight = 480, kRim = 80 };

static unsigned char g_arrRecords[13][kWidth * kHeight * 3];

static const unsigned char* MakeRecord(int nFrame) {
    unsigned char* pixel = g_arrRecords[nFrame];
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x, pixel += 3) {
            const int bKey = x >= kRim && x < kWidth - kRim && y >= kRim && y < kHeight - kRim;
            pixel[0] = (unsigned char)(bKey ? 255 : 10 * nFrame);
            pixel[1] = (unsigned char)(bKey ? 0 : 20 * nFrame);
            pixel[2] = (unsigned char)(bKey ? 0 : nFrame);
        }
    }
    return nFrame == NULL_RECORD ? 0 : g_arrRecords[nFrame];
}

#define FRAME(N)                                         \
    const unsigned char* FuncStickerFrameData_##N(void); \
    const unsigned char* FuncStickerFrameData_##N(void) { return MakeRecord(N); }

FRAME(1)
FRAME(2)
#if WITHOUT != 3
FRAME(3)
#endif
FRAME(4)
FRAME(5)
FRAME(6)
FRAME(7)
FRAME(8)
FRAME(9)
FRAME(10)
FRAME(11)
FRAME(12)
