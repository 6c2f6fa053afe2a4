#include "frames/FrameLibrary.h"

// All records in the order of their numbers, as fotarium-frames wrote them. The assembler reads the file: as
// an array in source text it would be eleven megabytes for the compiler.
asm(".section .rodata\n"
    ".balign 64\n"
    ".globl g_arrFrameRecords\n"
    ".hidden g_arrFrameRecords\n"
    "g_arrFrameRecords:\n"
    ".incbin \"" FOTARIUM_FRAME_RECORDS
    "\"\n"
    ".previous\n");

extern "C" {

extern const unsigned char g_arrFrameRecords[kStickerFrameCount][kStickerFrameBytes];

const unsigned char* FuncStickerFrameData_1() {
    return g_arrFrameRecords[0];
}

const unsigned char* FuncStickerFrameData_2() {
    return g_arrFrameRecords[1];
}

const unsigned char* FuncStickerFrameData_3() {
    return g_arrFrameRecords[2];
}

const unsigned char* FuncStickerFrameData_4() {
    return g_arrFrameRecords[3];
}

const unsigned char* FuncStickerFrameData_5() {
    return g_arrFrameRecords[4];
}

const unsigned char* FuncStickerFrameData_6() {
    return g_arrFrameRecords[5];
}

const unsigned char* FuncStickerFrameData_7() {
    return g_arrFrameRecords[6];
}

const unsigned char* FuncStickerFrameData_8() {
    return g_arrFrameRecords[7];
}

const unsigned char* FuncStickerFrameData_9() {
    return g_arrFrameRecords[8];
}

const unsigned char* FuncStickerFrameData_10() {
    return g_arrFrameRecords[9];
}

const unsigned char* FuncStickerFrameData_11() {
    return g_arrFrameRecords[10];
}

const unsigned char* FuncStickerFrameData_12() {
    return g_arrFrameRecords[11];
}

}  // extern "C"
