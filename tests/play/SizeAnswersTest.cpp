#include "play/ScriptTest.h"

namespace {

constexpr char kTooSmall[] = "box \"图像大小变更\" stop \"最小以下的大小\"\n";
constexpr char kTooLarge[] = "box \"图像大小变更\" stop \"最大以上的大小\"\n";

struct CSizeCase {
    const char* szAnswer;
    const char* szBox;  // null for a size that is taken
    CSize size{};
};

// Whatever may be typed as width or height. The picture is 40 by 30.
const CSizeCase kCases[] = {
    {"0 100", kTooSmall},
    {"100 0", kTooSmall},
    {"-1 100", kTooSmall},
    {"100 -1", kTooSmall},
    {"19 400", kTooSmall},
    {"400 19", kTooSmall},
    {"20 20", nullptr, {20, 20}},
    {"20 3200", nullptr, {20, 3200}},
    {"3200 20", nullptr, {3200, 20}},
    {"3201 100", kTooLarge},
    {"100 3201", kTooLarge},
    {"3201 10", kTooLarge},
    {"99999999999 100", kTooLarge},
    {"100 99999999999", kTooLarge},
    {"-99999999999 100", kTooSmall},
    {"99999999999 -99999999999", kTooLarge},
    {"宽 高", kTooSmall},
    {"100 \"\"", kTooSmall},
    {"keep width 100", nullptr, {100, 75}},
    {"keep height 60", nullptr, {80, 60}},
    // 2400.75 rows are 2400, and for these 3200 columns are right.
    {"keep width 3201", nullptr, {3200, 2400}},
    {"keep width 3204", kTooLarge},
    {"keep width 20", kTooSmall},
    {"keep height 99999999999", kTooLarge},
    {"keep width text", kTooSmall},
};

}  // namespace

// A size that is taken is one step back and ends the steps forward; a refused one leaves all of it alone.
TEST_F(ScriptTest, SizeAnswers) {
    MakePicture("a.png", 40, 30);
    for (const CSizeCase& entry : kCases) {
        const bool bTaken = entry.szBox == nullptr;
        const std::string strBox = bTaken ? "" : "answer box ok\n";
        const CResult result =
            Play("open a.png\ncommand 1013\nkey ctrl+z\nanswer size " + std::string(entry.szAnswer) + "\n" +
                     strBox + "command 1011\nboxes\nstate disp\nstate undo\nstate redo\ndump work w.ppm\n" +
                     "dump display d.ppm\ndump opened o.ppm",
                 true);
        EXPECT_EQ(result.strErr, "") << entry.szAnswer;
        const CSize size = bTaken ? entry.size : CSize{40, 30};
        EXPECT_EQ(result.strOut, (bTaken ? "boxes 0\n" : std::string("boxes 1\n") + entry.szBox) + "disp " +
                                     std::to_string(size.cx) + " " + std::to_string(size.cy) +
                                     (bTaken ? "\nundo 1\nredo 0\n" : "\nundo 0\nredo 1\n"))
            << entry.szAnswer;
        EXPECT_EQ(PixelsOf("w.ppm"), NumberedPixels(40, 30)) << entry.szAnswer;
        EXPECT_EQ(PixelsOf("o.ppm"), NumberedPixels(40, 30)) << entry.szAnswer;
        EXPECT_EQ(PixelsOf("d.ppm"), NaiveResample(NumberedPixels(40, 30), size.cx, size.cy))
            << entry.szAnswer;
    }
}

TEST_F(ScriptTest, SizeLeftWithoutAChoice) {
    MakePicture("a.png", 40, 30);
    EXPECT_EQ(Play("open a.png\nanswer cancel\ncommand 32775\nstate disp\nstate undo", true).strOut,
              "disp 40 30\nundo 0\n");
}
