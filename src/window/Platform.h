#pragma once

class CBitmaps;
class CClipboard;
class CClock;
class CColorDialogs;
class CDrives;
class CFileDialogs;
class CFolders;
class CFontDialogs;
class CLibraries;
class CMessageBoxes;
class CModalDialogs;
class CPopupMenus;
class CPrinters;
class CSerialPorts;
class CShell;
class CTextRasterizer;
class CTimers;
class CWaitCursor;

// What a program start has at hand of the platform, one reference a topic. Only the program's owner object
// holds it; every class below is given the few topics that it needs.
struct CPlatform {
    CMessageBoxes& boxes;
    CModalDialogs& modals;
    CFileDialogs& files;
    CColorDialogs& colors;
    CFontDialogs& fonts;
    CPopupMenus& menus;
    CTimers& timers;
    CWaitCursor& wait;
    CClipboard& clipboard;
    CFolders& folders;
    CTextRasterizer& text;
    CDrives& drives;
    CShell& shell;
    CBitmaps& bitmaps;
    CLibraries& libraries;
    CSerialPorts& ports;
    CPrinters& printers;
    CClock& clock;
};
