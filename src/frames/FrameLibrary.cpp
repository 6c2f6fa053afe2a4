#include "frames/FrameLibrary.h"

// All records in the order of their numbers, as fotarium-frames wrote them. The assembler reads the file: as
// an array in source text it would be eleven megabytes for the compiler.
asm(".section .rodata\n"
    ".balign 64\n"
    ".globl kFrameRecords\n"
    ".hidden kFrameRecords\n"
    "kFrameRecords:\n"
    ".incbin \"" FOTARIUM_FRAME_RECORDS
    "\"\n"
    ".previous\n");

extern "C" {

extern const unsigned char kFrameRecords[kStickerFrameCount][kStickerFrameBytes];

const unsigned char* FuncStickerFrameData_1() {
    return kFrameRecords[0];
}

const unsigned char* FuncStickerFrameData_2() {
    return kFrameRecords[1];
}

const unsigned char* FuncStickerFrameData_3() {
    return kFrameRecords[2];
}

const unsigned char* FuncStickerFrameData_4() {
    return kFrameRecords[3];
}

const unsigned char* FuncStickerFrameData_5() {
    return kFrameRecords[4];
}

const unsigned char* FuncStickerFrameData_6() {
    return kFrameRecords[5];
}

const unsigned char* FuncStickerFrameData_7() {
    return kFrameRecords[6];
}

const unsigned char* FuncStickerFrameData_8() {
    return kFrameRecords[7];
}

const unsigned char* FuncStickerFrameData_9() {
    return kFrameRecords[8];
}

const unsigned char* FuncStickerFrameData_10() {
    return kFrameRecords[9];
}

const unsigned char* FuncStickerFrameData_11() {
    return kFrameRecords[10];
}

const unsigned char* FuncStickerFrameData_12() {
    return kFrameRecords[11];
}

}  // extern "C"
