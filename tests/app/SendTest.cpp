// Sending to the phone: what may go, in which size and form, and what becomes of what may not.

#include "app/PhoneWorkshop.h"
#include "link/SendTemporary.h"

namespace {

class SendTest : public PhoneWorkshop {
  protected:
    void TearDown() override {
        m_dialog.Thum().List().StopFill();
        Workshop::TearDown();
    }
    void AnswerSize(int nRow) {
        CAnswer answer;
        answer.question = EQuestion::PhoneSize;
        answer.nRow = nRow;
        m_platform.Answer(answer);
    }
    // The picture that the phone has got under that name, and its thumbnail.
    CSize Sent(const std::string& strName) {
        const std::string& strBytes = Phone().mapSent[strName];
        m_folder.Write("sent.jpg", strBytes);
        return CxImage(m_folder.Path("sent.jpg"), ImageType::kJpeg).GetSize();
    }
    CSize SentThumb(const std::string& strName) {
        const std::string& strBytes = Phone().mapSent[strName];
        // The thumbnail begins behind the head, with a start mark of its own.
        m_folder.Write("thumb.jpg", strBytes.substr(std::min<std::size_t>(438, strBytes.size())));
        return CxImage(m_folder.Path("thumb.jpg"), ImageType::kJpeg).GetSize();
    }
    std::string Temporary() { return Start(CSendTemporary::kName); }
    void OpenSized(int nWidth, int nHeight) {
        Open(SavePicture("edited.png", NumberedImage(nWidth, nHeight)));
        EXPECT_EQ(State().m_strFileName, "edited.png");
    }
};

}  // namespace

TEST_F(SendTest, ListedFilesGoInThePhonesForm) {
    Connect();
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "请选择要下载的照片|") << "nothing has been pressed";
    Calls();
    ClickFile("a.jpg");
    ClickFile("b.jpg", kMouseCtrl);
    Click(kCmdSend);
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetTotalFileNum GetTotalFileNum "
              "GetAvailableMemorySize TransferFileToPhone GetAvailableMemorySize TransferFileToPhone "
              "SendDummyPacket StopDummyPacket DisconnectToPhone ");
    EXPECT_EQ(Boxes(), "文件已发送|");
    EXPECT_EQ(Sent("a.jpg"), (CSize{640, 480}));
    EXPECT_EQ(SentThumb("a.jpg"), (CSize{176, 144})) << "one of the phone's sizes fills the box";
    EXPECT_EQ(SentThumb("b.jpg"), (CSize{100, 80}));
    EXPECT_FALSE(std::filesystem::exists(Temporary()));
    EXPECT_EQ(Images().DisplaySize(), (CSize{100, 80})) << "of the last file that was read";
    // What was sent is not pressed any more.
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "请选择要下载的照片|");
}

TEST_F(SendTest, WhatCannotGoIsToldBeforeAnythingGoes) {
    EXPECT_TRUE(NumberedImage(641, 10).Save(Start("wide.jpg"), ImageType::kJpeg));
    m_folder.Write(std::string("start/") + CFolderTree::kStartFolder + "/bad.jpg", "no picture");
    std::filesystem::create_directories(Start("x.png"));
    m_dialog.Thum().List().FillThumbnails();
    Connect();
    struct {
        const char* szFile;
        const char* szBox;
    } const kCases[] = {
        {"wide.jpg", "wide.jpg文件超过手机支持的最大显像度(640 x 480)，无法传送|"},
        {"bad.jpg", "照片格式或文件错误.|"},
        {"inside", "无法传送文件夹，请选择照片|"},
        {"x.png", "'x.png'文件不支持图片格式, 文件出错无法传送|"},
    };
    for (const auto& row : kCases) {
        ClickFile(row.szFile);
        Click(kCmdSend);
        EXPECT_EQ(Boxes(), row.szBox);
        EXPECT_EQ(Calls(), "GetPhoneInfo ");
    }
    // A send that does not begin forgets the press too.
    ClickFile("b.jpg");
    Phone().mapCodes["GetPhoneInfo"] = LINK_PHONE_FULL;
    Click(kCmdSend);
    Phone().mapCodes.clear();
    Boxes();
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "请选择要下载的照片|");
    // With the table rising only its first size counts, and the largest is named.
    Phone().arrSizes = {{176, 144}, {640, 480}};
    ++Phone().nIdentity;
    Connect();
    ClickFile("a.jpg");
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "a.jpg文件超过手机支持的最大显像度(640 x 480)，无法传送|");
    // A phone without pictures takes none.
    Phone().nKind = 1;
    ++Phone().nIdentity;
    Connect();
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "不支持照片传送|");
    EXPECT_EQ(Calls(), "");
    EXPECT_TRUE(Facts().m_arrPhoneSizes.empty()) << "those of the phone before";
}

TEST_F(SendTest, TheLimitOfFilesAndTheFreeMemoryHold) {
    Phone().nMostFiles = 100;
    Phone().nKind = 6;
    Phone().nStored = 99;
    Connect();
    ClickFile("a.jpg");
    ClickFile("b.jpg", kMouseCtrl);
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "超过手机的最大存储个数（100 个）|");
    EXPECT_TRUE(Phone().mapSent.empty());
    ClickFile("b.jpg");
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "文件已发送|");
    // With the other class of items the same limit is reached.
    Phone().nKind = 2;
    ++Phone().nIdentity;
    Phone().bNoRestart = 0;
    Connect();
    ClickFile("b.jpg");
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "超过手机的最大存储个数（100 个）. \n\n手机重启|");
    // The second of two is too much for the memory: it waits in its temporary file.
    Phone().nMostFiles = 0;
    Phone().bNoRestart = 1;
    ++Phone().nIdentity;
    Connect();
    Phone().mapSent.clear();
    Phone().fnCode = [](const std::string& strCall) -> std::int32_t {
        if (strCall == "TransferFileToPhone") CFakePhone::Now().nFree = 9;
        return LINK_OK;
    };
    ClickFile("a.jpg");
    ClickFile("b.jpg", kMouseCtrl);
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "存储空间不足，文件不能传送.  \n\nb.jpg ~ b.jpg|");
    EXPECT_EQ(Phone().mapSent.size(), 1U);
    EXPECT_TRUE(std::filesystem::exists(Temporary()));
    OpenSized(176, 144);
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "存储空间不足，文件不能传送.|");
    EXPECT_EQ(Keys(), "-xx") << "the phone stays connected";
}

TEST_F(SendTest, ThePictureInTheEditorGoesInASizeOfThePhone) {
    Connect();
    // One of its sizes goes unasked, with a name of its own.
    OpenSized(640, 480);
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "文件已发送|");
    EXPECT_EQ(Sent("edited.png"), (CSize{640, 480}));
    // One that fits may go as it is or be brought to a size.
    OpenSized(200, 190);
    m_platform.Answer(EBoxAnswer::No);
    Click(kCmdSend);
    EXPECT_EQ(Sent("edited.png"), (CSize{200, 190}));
    EXPECT_EQ(SentThumb("edited.png"), (CSize{176, 167}));
    m_platform.Answer(EBoxAnswer::Yes);
    AnswerSize(1);
    Boxes();
    Click(kCmdSend);
    EXPECT_EQ(Sent("edited.png"), (CSize{176, 144}));
    EXPECT_EQ(Images().DisplaySize(), (CSize{176, 144}));
    EXPECT_EQ(Undos(), 1);
    Click(kCmdUndo);
    EXPECT_EQ(Images().DisplaySize(), (CSize{200, 190}));
    // One that does not fit has to be, or does not go.
    OpenSized(800, 600);
    Phone().mapSent.clear();
    Calls();
    Boxes();
    m_platform.Answer(EBoxAnswer::No);
    Click(kCmdSend);
    EXPECT_EQ(Boxes(),
              "超过手机支持的最大显像度（640 x 480 ），无法传送 \n变更为手机最小化显像度吗？\n（（注意："
              "如果选择否的话则不传送）|");
    EXPECT_EQ(Calls(),
              "GetPhoneInfo ChangeUSBStream IsConnected ConnectToPhone GetTotalFileNum GetTotalFileNum "
              "SendDummyPacket StopDummyPacket DisconnectToPhone ");
    m_platform.Answer(EBoxAnswer::Yes);
    m_platform.AnswerCancel();
    Click(kCmdSend);
    EXPECT_TRUE(Phone().mapSent.empty());
    EXPECT_EQ(Undos(), 0);
    // Under the phone's screen size it goes in that.
    GoTo(EMode::Stick);
    Click(kRadioPhoneSize);
    Click(kCmdSend);
    EXPECT_EQ(Boxes().find("变更为手机最小化") != std::string::npos, true)
        << "and the larger one is asked about";
    m_platform.TakeProblems();
}

// What is being painted, a float too, goes along; what FONT shows smaller goes in its own size.
TEST_F(SendTest, EveryModeSendsWhatItShows) {
    Connect();
    OpenSized(640, 480);
    PaintOver(Touch(Images().m_imgWork), {9, 9, 9});
    for (const EMode mode : {EMode::Stick, EMode::Font, EMode::Draw, EMode::Effect}) {
        SCOPED_TRACE(mode);
        GoTo(mode);
        Phone().mapSent.clear();
        Click(kCmdSend);
        EXPECT_EQ(Boxes(), "文件已发送|");
        EXPECT_EQ(Sent("edited.png"), (CSize{640, 480}));
        const CxImage image(m_folder.Path("sent.jpg"), ImageType::kJpeg);
        EXPECT_NEAR(PixelAt(image.Pixels(), 600, 400).r, 9, 2);
    }
}

TEST_F(SendTest, AFloatIsMergedIntoWhatIsSent) {
    Connect();
    OpenSized(640, 480);
    GoTo(EMode::Draw);
    Click(FindToolButton(ETool::SelectRect));
    // The picture begins at (9, 31) on the canvas.
    const auto mouse = [&](EMouseAction action, CPoint pt) {
        const EMouseButton button = action == EMouseAction::Move ? EMouseButton::None : EMouseButton::Left;
        EXPECT_EQ(m_host.MouseOnView(kCanvas, action, button, pt), "");
    };
    mouse(EMouseAction::Press, {109, 131});
    mouse(EMouseAction::Move, {159, 181});
    mouse(EMouseAction::Release, {159, 181});
    Click(kCmdCopy);
    Click(kCmdPaste);
    ASSERT_TRUE(m_dialog.Draw().IsFloating());
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "文件已发送|");
    EXPECT_EQ(Sent("edited.png"), (CSize{640, 480}));
    const CxImage image(m_folder.Path("sent.jpg"), ImageType::kJpeg);
    EXPECT_NEAR(PixelAt(image.Pixels(), 20, 20).r, PixelAt(NumberedPixels(640, 480), 120, 120).r, 12);
    EXPECT_FALSE(m_dialog.Draw().IsFloating());
}

TEST_F(SendTest, TheTemporaryFileFollowsNoLinkAndHasAnotherPlace) {
    Connect();
    m_folder.Write("precious", "precious");
    std::filesystem::create_symlink(m_folder.Path("precious"), Temporary());
    Phone().mapCodes["GetAvailableMemorySize"] = LINK_MEMORY_FAILED;
    ClickFile("b.jpg");
    Click(kCmdSend);
    Boxes();
    EXPECT_EQ(ReadBytes(m_folder.Path("precious")), "precious");
    EXPECT_TRUE(std::filesystem::is_regular_file(std::filesystem::symlink_status(Temporary())));
    Phone().mapCodes.clear();
    std::filesystem::remove(Temporary());
    std::filesystem::create_directories(Temporary());  // nothing can be written there
    Connect();
    ClickFile("b.jpg");
    Click(kCmdSend);
    EXPECT_EQ(Boxes(), "文件已发送|");
    EXPECT_EQ(Sent("b.jpg"), (CSize{100, 80}));
}

TEST_F(SendTest, NamesGoToThePhoneByteForByte) {
    std::vector<std::string> arrNames = {"\xFF\xFE.jpg", "100%s%n.jpg", std::string(251, 'n')};
    arrNames.back() += ".jpg";
    for (const std::string& strName : arrNames) std::filesystem::copy_file(Start("b.jpg"), Start(strName));
    m_dialog.Thum().List().FillThumbnails();
    Connect();
    for (const std::string& strName : arrNames) {
        ClickFile(strName);
        Click(kCmdSend);
        EXPECT_EQ(Boxes(), "文件已发送|");
        EXPECT_EQ(Sent(strName), (CSize{100, 80}));
    }
}
