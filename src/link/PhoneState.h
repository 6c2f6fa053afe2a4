#pragma once

#include <cstdint>
#include <vector>

#include "image/Geometry.h"

// What is known of the phone. A connect fills it, and it stays as it is until the next one. The types are
// those of the phone library's out-values, which are written right into it.
struct CPhoneState {
    // The phone has been identified and may be used; the line itself is closed between commands.
    bool m_bConnected = false;
    std::int32_t m_nPort = 0;        // number of the line COMn; 0 if the line chosen had none
    std::int32_t m_nModemPort = -1;  // number of the modem beside it, -1 for none
    unsigned char m_bUsbPort = 0;    // 1: found without asking, 0: chosen by the user
    std::uint32_t m_nPhoneId = 0;
    std::int32_t m_nPhoneKind = 0;  // 6: only photos count against the file limit
    bool m_bPhotoPhone = false;     // it takes pictures
    std::int32_t m_nMaxFiles = 0;   // -1 for no limit
    unsigned char m_bHasCard = 0;
    unsigned char m_bFetchOption = 0;  // handed back in every GetFilefromPhone
    unsigned char m_bNoRestart = 0;    // 0: it restarts after an exchange, and the user is told so
    std::int32_t m_nUsbStream = 0;     // from ChangeUSBStream for TransferFileToPhone
    std::int32_t m_nThumbWidth = 320;  // pixels
    std::int32_t m_nThumbHeight = 240;
    std::vector<CSize> m_arrPhoneSizes;  // in the library's order
};
