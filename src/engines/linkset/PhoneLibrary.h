#pragma once

/* What a library that talks to a camera phone has to offer; plain C, so that any compiler's library fits.
 *
 * The program loads the library by its file name, PHONE_LIBRARY_NAME, and finds its functions by their names.
 * All calls come on one thread, each when the one before has returned; none comes between SendDummyPacket and
 * StopDummyPacket. Everything that crosses is a number, a byte of 0 or 1, or a text in UTF-8; the only bulk
 * data are the files that a call names. A pointer is good for its call only, and nobody keeps or frees it. An
 * out-value is written when the function returns 0; one that is left alone keeps what the program held.
 *
 * A "port" is the number n of a line COMn; "modem port" the number of the phone's modem beside it, or -1;
 * "usb" is 1 if the program found the port by itself, 0 if the user chose it.
 *
 * The order of calls:
 *   connect   GetPhoneInfo; if the phone is new ConnectToPhone, GetNumResolution, GetResolution for each
 *             index, GetThumbnailResolution, DisconnectToPhone
 *   take      GetPhoneInfo, ChangeUSBStream, IsConnected, if that was not 0 ConnectToPhone,
 *             GetFileInfoListfromPhone, while the user chooses SendDummyPacket and StopDummyPacket or, with a
 *             card, GetSDCardStatus every five seconds, GetFilefromPhone for each file, DisconnectToPhone
 *   send      GetPhoneInfo, ChangeUSBStream, IsConnected, if that was not 0 ConnectToPhone, GetTotalFileNum,
 *             for each picture GetAvailableMemorySize and TransferFileToPhone, DisconnectToPhone
 *   restart   GetPhoneInfo again and again until the phone has gone and come back
 */

#include <stdint.h>

#define PHONE_LIBRARY_NAME "OrvoLinkMgr.dll"

enum {
    LINK_OK = 0,
    /* The connection failed: -4 ends quietly, -2 asks the user to look at the port, -1 has no more to tell.
     */
    LINK_CONNECT_FAILED_QUIETLY = -4,
    LINK_CONNECT_FAILED_PORT = -2,
    LINK_CONNECT_FAILED = -1,
    LINK_PHONE_LOCKED = 2,
    LINK_NO_CAMERA = 3,
    LINK_INFO_FAILED = 4,
    LINK_SIZES_FAILED = 5,
    LINK_NO_FILES = 6, /* none on the phone to take */
    LINK_LIST_FAILED = 7,
    LINK_TARGET_FAILED = 8, /* the file cannot be made on the computer */
    LINK_TAKE_FAILED = 9,
    LINK_MEMORY_FAILED = 10, /* the free memory cannot be read */
    LINK_SOURCE_FAILED = 11, /* the file to send cannot be opened */
    LINK_SEND_FAILED = 12,
    LINK_SEND_CANCELLED = 13,
    LINK_PHONE_FULL = 14,
    LINK_ALBUM_LOCKED = 15,
    LINK_CARD_GONE = 16,   /* the memory card has left or come */
    LINK_FILE_FAILED = 17, /* this one file; the others may go on */
    LINK_EXCHANGE_IMPOSSIBLE = 20,
    LINK_CALL_CAME_IN = 21,
    LINK_BATTERY_LOW = 22
};

enum {
    LINK_ITEM_PHOTO = 7,
    LINK_ITEM_OTHER = 10 /* a second class of items that share the phone's file limit */
};

#if defined(_WIN32)
#define PHONE_LIBRARY_EXPORT __declspec(dllexport)
#else
#define PHONE_LIBRARY_EXPORT __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Their names are the contract. NOLINTBEGIN(readability-identifier-naming,modernize-*) */

/* The identity of the phone at the port: the same number for the same phone always. Works without
 * ConnectToPhone. Gives up after timeLimit milliseconds. */
PHONE_LIBRARY_EXPORT int32_t GetPhoneInfo(int32_t port, int32_t modemPort, unsigned char usb,
                                          uint32_t* identity, int32_t timeLimit);

/* Opens the line. kind: not 0 and even for a phone that takes pictures, 6 for one whose limit counts photos
 * alone. mostFiles: how many files the phone stores, 0 for no limit. hasCard: it has a memory card.
 * fetchOption: handed back in every GetFilefromPhone. noRestart: it goes on working after an exchange; if 0
 * it restarts. */
PHONE_LIBRARY_EXPORT int32_t ConnectToPhone(int32_t port, int32_t modemPort, int32_t* kind,
                                            int32_t* mostFiles, unsigned char* hasCard,
                                            unsigned char* fetchOption, unsigned char* noRestart,
                                            unsigned char usb);

/* Closes the line; one that is closed already stays so. */
PHONE_LIBRARY_EXPORT void DisconnectToPhone(void);

/* Not 0: the line has to be opened by ConnectToPhone; 0: the exchange may go on. */
PHONE_LIBRARY_EXPORT int32_t IsConnected(void);

/* The first call of every take and send; stream is 1. streamValue is handed on to TransferFileToPhone. A
 * library may do without this function. */
PHONE_LIBRARY_EXPORT int32_t ChangeUSBStream(int32_t port, int32_t modemPort, unsigned char usb,
                                             int32_t stream, int32_t* streamValue);

/* How many picture sizes the phone has, and each of them in pixels, by an index from 0. Of the codes of
 * GetNumResolution only -1 and 2 count as failure. */
PHONE_LIBRARY_EXPORT int32_t GetNumResolution(int32_t itemClass, int32_t* count);
PHONE_LIBRARY_EXPORT int32_t GetResolution(int32_t itemClass, int32_t index, int32_t* width, int32_t* height);

/* The size of the phone's thumbnails in pixels. */
PHONE_LIBRARY_EXPORT int32_t GetThumbnailResolution(int32_t itemClass, int32_t* width, int32_t* height);

/* From SendDummyPacket to StopDummyPacket the library keeps the phone in the exchange, because the program
 * waits for its user. */
PHONE_LIBRARY_EXPORT int32_t SendDummyPacket(void);
PHONE_LIBRARY_EXPORT void StopDummyPacket(void);

/* Writes the list of the phone's files as FILE.Dat into the folder, in the form that docs/data-files.md
 * tells; option is 1. count: how many records it has. A library without this function takes no files. */
PHONE_LIBRARY_EXPORT int32_t GetFileInfoListfromPhone(unsigned char usb, int32_t itemClass, int32_t* count,
                                                      const char* folder, int32_t option);

/* Writes the file with the id of its record in FILE.Dat to the path, over one that is there. Other codes than
 * LINK_CARD_GONE and LINK_FILE_FAILED end the take. */
PHONE_LIBRARY_EXPORT int32_t GetFilefromPhone(int32_t itemClass, uint32_t fileId, const char* path,
                                              unsigned char fetchOption);

/* The phone's free memory for pictures, in bytes. */
PHONE_LIBRARY_EXPORT int32_t GetAvailableMemorySize(int32_t itemClass, uint32_t* bytes);

/* How many items of the class the phone stores. */
PHONE_LIBRARY_EXPORT int32_t GetTotalFileNum(int32_t itemClass, int32_t* count);

/* Sends the file at the path; it bears that name on the phone. A library without this function sends none. */
PHONE_LIBRARY_EXPORT int32_t TransferFileToPhone(int32_t itemClass, const char* path, const char* name,
                                                 int32_t streamValue);

/* LINK_OK: the card is as before; LINK_CARD_GONE: it has left or come. */
PHONE_LIBRARY_EXPORT int32_t GetSDCardStatus(int32_t itemClass);

/* NOLINTEND(readability-identifier-naming,modernize-*) */

#ifdef __cplusplus
}
#endif
