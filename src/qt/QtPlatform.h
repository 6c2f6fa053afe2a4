#pragma once

#include "qt/Pictures.h"
#include "qt/QtClipboard.h"
#include "qt/QtClock.h"
#include "qt/QtColorDialogs.h"
#include "qt/QtDrives.h"
#include "qt/QtFileDialogs.h"
#include "qt/QtFolders.h"
#include "qt/QtFontDialogs.h"
#include "qt/QtLibraries.h"
#include "qt/QtMessageBoxes.h"
#include "qt/QtModalDialogs.h"
#include "qt/QtPopupMenus.h"
#include "qt/QtPrinters.h"
#include "qt/QtSerialPorts.h"
#include "qt/QtShell.h"
#include "qt/QtTextRasterizer.h"
#include "qt/QtTimers.h"
#include "qt/QtWaitCursor.h"
#include "window/Platform.h"

// Everything that the program asks of a platform, done by Qt. Needs a QApplication that has been set up.
class CQtPlatform {
  public:
    explicit CQtPlatform(CBitmaps& bitmaps)
        : m_pictures(bitmaps),
          m_modals(m_pictures, m_timers),
          m_files(m_pictures, m_timers),
          m_shell(m_boxes),
          m_printers(m_files),
          m_platform{m_boxes,  m_modals, m_files,     m_colors,  m_fonts,    m_menus,
                     m_timers, m_wait,   m_clipboard, m_folders, m_text,     m_drives,
                     m_shell,  bitmaps,  m_libraries, m_ports,   m_printers, m_clock} {}
    CQtPlatform(const CQtPlatform&) = delete;
    CQtPlatform& operator=(const CQtPlatform&) = delete;

    // Good as long as this object.
    const CPlatform& Platform() const { return m_platform; }

  private:
    CPictures m_pictures;
    CQtTimers m_timers;
    CQtMessageBoxes m_boxes;
    CQtModalDialogs m_modals;
    CQtFileDialogs m_files;
    CQtColorDialogs m_colors;
    CQtFontDialogs m_fonts;
    CQtPopupMenus m_menus;
    CQtWaitCursor m_wait;
    CQtClipboard m_clipboard;
    CQtFolders m_folders;
    CQtTextRasterizer m_text;
    CQtDrives m_drives;
    CQtShell m_shell;
    CQtLibraries m_libraries;
    CQtSerialPorts m_ports;
    CQtPrinters m_printers;
    CQtClock m_clock;
    CPlatform m_platform;
};
