#include "workbench/Verbs.h"

#include <charconv>

namespace {

constexpr CWorkVerb kVerbs[] = {
    {"effect", "ID LEVEL IN.ppm OUT.ppm [--full-width N] [--seed N]",
     "    Applies the effect ID at LEVEL to a binary PPM. An effect without a level takes any number for "
     "it.\n"
     "    --full-width N   the picture is a preview of one N pixels wide; else it is the full picture\n"
     "    --seed N         where the random numbers start; 1 as in the program without it\n",
     RunEffectVerb},
    {"figures", "CASES OUT",
     "    Draws the figures of a text file, each on a small white picture, and writes every case with its\n"
     "    answer and its rows of pixels: . white, P the pen's colour, B the brush's. Answers and rows that\n"
     "    stand in CASES are passed over. A case is one line, ID KIND W H PW BRUSH and what the kind takes;\n"
     "    PW is the pen's width, 0 for none, BRUSH is hollow, solid or none. Boxes are l t r b.\n"
     "      LINE x0 y0 x1 y1    POLYLINE n x y ...    POLYGON n x y ...    BEZIER four points\n"
     "      RECT box            ELLIPSE box           ROUNDRECT box ew eh  FILLRECT box\n"
     "      FLOOD x y C k shapes       LINE, RECT or ELLIPSE k times, then a fill of the colour C: W, P, B,\n"
     "                                 or A for the one found there\n"
     "      DOTTED STYLE BK GROUND SHAPE ...   dot, dash, dashdot or dashdotdot; opaque or transparent;\n"
     "                                 white or brush; LINE, RECT, ELLIPSE, POLYLINE n ... or LINETO n ...\n"
     "      RGNPOLY n x y ...   RGNELL box   RGNRECT box        FILLRGN POLY n ..., ELL box or RECT box\n"
     "      STRETCH sw sh ROWS dx dy dw dh sx sy sW sH   a picture of sw by sh, rows parted by /, of which\n"
     "                                 the block sx sy sW sH is stretched onto the block dx dy dw dh\n",
     RunFiguresVerb},
    {"pack", "PICTURE.jpg THUMB.jpg OUT.jpg",
     "    Packs a picture and its thumbnail into one JPEG as the phone wants it. Both files begin with a "
     "start\n"
     "    mark and sixteen bytes of JFIF, 20 bytes that are cut; a thumbnail has at most 65119 bytes.\n",
     RunPackVerb},
    {"page",
     "preview W H CLIENTW CLIENTH PAPER PAPERW PAPERH portrait|landscape [stamp]\n"
     "workbench page print W H DPIX DPIY HORZRES VERTRES portrait|landscape [stamp]",
     "    Reckons where a picture of W by H stands on a page and prints it in pixels of the target: page\n"
     "    WIDTH HEIGHT, margin BOTH, picture X Y WIDTH HEIGHT; of the preview sheet X Y WIDTH HEIGHT and\n"
     "    question yes|no, whether a date would be tiny; and with stamp the date's stamp SIZE RESERVED X Y,\n"
     "    its cell's height, the width kept for it, its left and its bottom edge in the picture.\n"
     "    PAPER is 1 to 41, or 256 for one of PAPERW by PAPERH tenths of a millimetre; else it is A4.\n"
     "    HORZRES and VERTRES are the dots that the printer reaches. Numbers go from 0 to 1000000.\n",
     RunPageVerb},
    {"ports", "CASES OUT",
     "    Searches serial ports as a text file tells them. Its lines are carried out from the first to the\n"
     "    last; what asks for something is written to OUT, with its answers behind it, indented. Words are\n"
     "    parted by spaces; a word with spaces or none at all stands in \"quotes\", a quote inside is "
     "doubled, a\n"
     "    backslash is itself. A line that begins with # is a comment. A - without quotes is a text that\n"
     "    cannot be read.\n"
     "    What there is:\n"
     "      case NAME                  a new machine, without ports, records and probes\n"
     "      system MAJOR PLATFORM      the system's version and platform id; 5 2 if not told. From 5 on it "
     "is\n"
     "                                 new, below 5 with platform 2 it has fixed names, else it is oldest\n"
     "      fails CALL ERROR           version, classdevs, interfaces or detail fails with that error "
     "number\n"
     "      interface FRIENDLY DESC    a device of the class of serial ports on a new system; either may be "
     "-\n"
     "      key PATH [closed]          a registry key below HKEY_LOCAL_MACHINE, with those above it; closed\n"
     "                                 cannot be opened. Asked for by name, keys and values have no case\n"
     "      value PATH NAME DATA       a value of the key at PATH, which comes with it; DATA may be -\n"
     "      portname NAME              the value portname of one more device of class Ports\n"
     "      record PORTNAME FRIENDLY   one more record, as a step of the enumeration leaves it\n"
     "      probe NAME free|busy|absent   what comes of opening exactly NAME; absent if not told\n"
     "      choose TEXT                what the user takes in the port dialog; cancelled if - or not told\n"
     "    What is asked for:\n"
     "      step1       lists the machine's ports: error TEXT, and record PORTNAME FRIENDLY for each. These\n"
     "                  records stand from now on\n"
     "      step2       takes modems out of the records and names those without a friendly name; record for\n"
     "                  each that is left\n"
     "      realnames   name TEXT for each real port of class Ports on the oldest systems\n"
     "      search      looks for the phone among the records, on the oldest systems with the real names:\n"
     "                  probe NAME RESULT as they are made, line I TEXT for each record that has a line, "
     "usb\n"
     "                  TEXT if the search ended there, and askmodem 1 if the modem's port is asked for "
     "then\n"
     "      find        all in one, step1 first: record, probe, line and usb, then port N (-1 none, -2\n"
     "                  cancelled), usbport 0, 1 or - (not changed), modemport N or - (not asked for)\n"
     "      parse TEXT  number N in a line or in a name, 0 for none\n"
     "      modem new|old   number N of the modem's port from the registry, -1 for none\n"
     "      device N|NAME   device PATH of the port N on this machine, empty for none; number N of a device\n"
     "                  such as ttyUSB0, 0 for none\n",
     RunPortsVerb},
    {"filedat", "RECORDS OUT",
     "    Makes a FILE.Dat, the list of a phone's files, of a text file with one record a line. Its parts "
     "are\n"
     "    parted by tabs; records are numbered by their lines, from 0.\n"
     "      ID SIZE MEMORY CLOSED NAME   MEMORY is 0 for the phone's own, CLOSED 1 for what cannot be "
     "taken\n",
     RunFileDatVerb},
    {"userdat", "RECORDS OUT",
     "    Makes a User.Dat, the phones that are known, likewise.\n"
     "      ID MAXFILES THUMBW THUMBH CARD FETCH NORESTART WxH...   MAXFILES is -1 for no limit\n",
     RunUserDatVerb},
    {"warp", "PARAMS BASE.ppm MASK.pgm OUT.ppm",
     "    Warps a text over a picture. The mask is a binary PGM, 0 full ink and 255 none. PARAMS is a text\n"
     "    file with one setting a line; # begins a comment. What is not set: kind 0, effect 0, colour\n"
     "    217 40 200, both boxes 176 by 144 at 0 0 and the corners on the box, grid 4 4, regular 176 144.\n"
     "      kind K        0 projection, 1 mesh\n"
     "      effect E      0 plain, 1 shaded, 2 outlined, 3 reversed\n"
     "      colour R G B  from 0 to 255\n"
     "      quad x0 y0 x1 y1 x2 y2 x3 y3   top left, top right, bottom right, bottom left, in the box\n"
     "      box X Y WIDTH HEIGHT           where the projection's box is in the picture\n"
     "      mesh X Y WIDTH HEIGHT          where the mesh's box is\n"
     "      grid COLS ROWS                 the points of the mesh: 3 or more each way, 20 at most\n"
     "      regular WIDTH HEIGHT           4 by 4 points, regular over that size before and after the warp\n"
     "      srcx, srcy, dstx, dsty N ...   up to 20 numbers: the points before and after, row by row\n",
     RunWarpVerb},
};

}  // namespace

std::span<const CWorkVerb> AllVerbs() {
    return kVerbs;
}

std::optional<long long> ParseNumber(const std::string& strWord, long long nMin, long long nMax) {
    long long n = 0;
    const char* const pEnd = strWord.data() + strWord.size();
    const auto [pStop, error] = std::from_chars(strWord.data(), pEnd, n);
    if (error != std::errc() || pStop != pEnd || n < nMin || n > nMax) return std::nullopt;
    return n;
}
