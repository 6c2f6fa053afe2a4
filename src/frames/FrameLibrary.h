#pragma once

/* What a library of sticker frames has to offer; plain C, so that any compiler's library fits.
 *
 * The program loads the library by its file name, StickerFrameData.dll, calls one function and lets the
 * library go again, for each frame that somebody lays over a picture. Function N returns the record of frame
 * N: 640 by 480 pixels of three bytes, red, green, blue, rows from the top, nothing between them. The pointer
 * is good until the library is let go, and nobody frees it.
 *
 * A pixel whose red is 254 or 255 and whose green and blue are 0 or 1 is the key: the picture shows there.
 * All others cover the picture; nothing is mixed. A frame is stretched to the picture by its nearest pixels.
 */

enum {
    kStickerFrameCount = 12,
    kStickerFrameWidth = 640,
    kStickerFrameHeight = 480,
    kStickerFrameBytes = kStickerFrameWidth * kStickerFrameHeight * 3
};

#if defined(_WIN32)
#define STICKER_FRAME_EXPORT __declspec(dllexport)
#else
#define STICKER_FRAME_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Their names are the contract. NOLINTBEGIN(readability-identifier-naming,modernize-*) */
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_1(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_2(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_3(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_4(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_5(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_6(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_7(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_8(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_9(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_10(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_11(void);
STICKER_FRAME_EXPORT const unsigned char* FuncStickerFrameData_12(void);
/* NOLINTEND(readability-identifier-naming,modernize-*) */

#ifdef __cplusplus
}
#endif
