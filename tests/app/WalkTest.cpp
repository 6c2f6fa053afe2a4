// A long walk of random commands, held against a plain model of the edit.

#include <array>
#include <filesystem>
#include <random>

#include "app/WalkModel.h"
#include "app/Workshop.h"

namespace {

constexpr std::array<CSize, 4> kSizes = {{{60, 40}, {23, 71}, {700, 30}, {1, 1}}};

class WalkTest : public Workshop {
  protected:
    WalkTest() {
        for (std::size_t n = 0; n < kSizes.size(); ++n)
            SavePicture(NameOfPicture(n), NumberedImage(kSizes[n].cx, kSizes[n].cy));
        m_folder.Write("bad.jpg", "no picture");
        m_platform.AddDrive('C', m_folder.Path());
        std::filesystem::create_directory(m_folder.Path("bin"));
        m_platform.SetBin(m_folder.Path("bin"));
        for (int n = 0; n < 20; ++n) Grow();
    }

    static std::string NameOfPicture(std::size_t n) { return std::to_string(n) + ".png"; }
    int Pick(int nBelow) { return std::uniform_int_distribution<int>(0, nBelow - 1)(m_random); }

    // A click that only a person who sees an enabled button can do.
    bool CanClick(int nId) { return Controls().IsShown(nId) && Controls().IsEnabled(nId); }
    bool TryClick(int nId) {
        if (!CanClick(nId)) return false;
        EXPECT_EQ(m_host.Click(nId), "");
        return true;
    }

    void OpenSomething() {
        const auto n = static_cast<std::size_t>(Pick(static_cast<int>(kSizes.size())));
        const bool bDialog = Pick(2) == 0;
        const int nKind = Pick(8);
        const std::string strName = nKind == 0 ? "bad.jpg" : nKind == 1 ? "noextension" : NameOfPicture(n);
        if (bDialog) {
            m_platform.AnswerOpen(m_folder.Path(strName));
            Click(kCmdOpen);
        } else {
            m_dialog.OpenFileByName(m_folder.Path(), strName);
        }
        if (nKind == 0) ++m_nBoxes;
        if (nKind > 1) m_model.Open(NumberedPixels(kSizes[n].cx, kSizes[n].cy));
    }

    // Another hand paints on the working image behind a push, as the flows of the modes do.
    void PaintSomething() {
        if (!m_model.bOpen || State().IsUp(EMode::Draw)) return;
        const CColor color{static_cast<std::uint8_t>(Pick(256)), 1, 2};
        PaintOver(Touch(Images().m_imgWork), color);
        m_model.now.work = Images().m_imgWork.Pixels();
    }

    void Act() {
        if (State().IsUp(EMode::Thum) && Pick(3) > 0) return Browse();
        if (Pick(4) == 0) return Shape();
        switch (Pick(14)) {
            case 0:
                if (TryClick(kCmdNew)) m_model.New();
                break;
            case 1:
            case 2:
                if (TryClick(kCmdUndo)) m_model.Undo();
                break;
            case 3:
                if (TryClick(kCmdRedo)) m_model.Redo();
                break;
            case 4:
                if (TryClick(kCmdReset)) m_model.Reset();
                break;
            case 5:
                m_model.bOpen ? (CtrlKey('Z'), m_model.Undo()) : m_model.Undo();
                break;
            case 6:
                m_model.bOpen ? (CtrlKey('Y'), m_model.Redo()) : m_model.Redo();
                break;
            case 7:
                if (TryClick(Pick(2) ? kRadioPhoneSize : kLabelPhoneSize))
                    m_model.SetRule(true), PaintSomething();
                break;
            case 8:
                if (TryClick(Pick(2) ? kRadioImageSize : kLabelImageSize))
                    m_model.SetRule(false), PaintSomething();
                break;
            case 9:
                if (Pick(3) == 0) OpenSomething();
                break;
            case 10:
                ClickAnything();
                break;
            default:
                TryClick(TabOf(kAllModes[Pick(5)]));
        }
    }

    bool MenuComesUp() const {
        const CEditState& state = State();
        return state.IsAtWork(EMode::Effect) || (state.IsAtWork(EMode::Stick) && !Images().IsPhoneSize());
    }
    // A command of shape and size, by its button or from the menu. False if nobody could give it.
    bool Give(int nButton, int nMenuItem) {
        if (Pick(2) == 0) return TryClick(nButton);
        if (!MenuComesUp()) return false;
        m_platform.AnswerMenu(nMenuItem);
        EXPECT_EQ(m_host.MouseOnView(kCanvas, EMouseAction::Press, EMouseButton::Right, {3, 3}), "");
        return true;
    }
    void Shape() {
        const int nSide = Pick(8) == 0 ? 3150 + Pick(100) : 10 + Pick(300);
        const CSize size{Pick(2) ? nSide : 10 + Pick(300), 10 + Pick(300)};
        bool bDone = true;
        switch (Pick(8)) {
            case 0:
                if (Give(kCmdFlipVertical, kMenuFlipVertical)) m_model.Flip(true);
                break;
            case 1:
                if (Give(kCmdFlipHorizontal, kMenuFlipHorizontal)) m_model.Flip(false);
                break;
            case 2:
                if (Give(kCmdTurnLeft, kMenuTurnLeft)) bDone = m_model.Turn(false);
                break;
            case 3:
                if (Give(kCmdTurnRight, kMenuTurnRight)) bDone = m_model.Turn(true);
                break;
            case 4:
                m_platform.AnswerSize(size);
                if (Give(kCmdSize, kMenuSize)) bDone = m_model.Size(size);
                m_platform.ForgetAnswers();
                break;
            case 5:
                if (Give(kCmdLarge, kMenuLarge)) bDone = m_model.Zoom(true);
                break;
            case 6:
                if (Give(kCmdSmall, kMenuSmall)) bDone = m_model.Zoom(false);
                break;
            default:
                if (Give(kCmdActual, kMenuActual)) bDone = m_model.Actual();
        }
        if (!bDone) ++m_nBoxes;
    }

    // --- the browser ---

    CFolderTree& Tree() { return m_dialog.Thum().Tree(); }
    CPicFileList& List() { return m_dialog.Thum().List(); }
    CIconListModel& Icons() { return List().Model(); }

    // Another program writes a file or makes a folder, anywhere on the drive.
    void Grow() {
        std::vector<std::string> arrFolders = {m_folder.Path()};
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_folder.Path()))
            if (entry.is_directory()) arrFolders.push_back(entry.path().string());
        if (arrFolders.size() > 60) return;
        const std::string strFolder =
            arrFolders[static_cast<std::size_t>(Pick(static_cast<int>(arrFolders.size())))];
        const std::string strNumber = std::to_string(Pick(30));
        const std::string strFile = strFolder + "/p" + strNumber + ".jpg";
        std::error_code error;
        if (Pick(3) == 0)
            std::filesystem::create_directory(strFolder + "/f" + strNumber + (Pick(9) ? "" : ".jpg"), error);
        else if (Pick(8) == 0)
            std::filesystem::copy_file(m_folder.Path("bad.jpg"), strFile, error);
        else
            EXPECT_TRUE(NumberedImage(1 + Pick(40), 1 + Pick(40)).Save(strFile, ImageType::kJpeg));
    }
    CTreeItem RandomNode() {
        const CTreeModel& tree = Tree().Model();
        CTreeItem item = kNoTreeItem;
        for (int nDepth = Pick(5); nDepth >= 0 && !tree.Children(item).empty(); --nDepth) {
            const auto& arrChildren = tree.Children(item);
            item = arrChildren[static_cast<std::size_t>(Pick(static_cast<int>(arrChildren.size())))];
        }
        return item;
    }
    // Nodes that are out of sight are refused, which is no fault.
    void WorkTree() {
        const CTreeItem item = RandomNode();
        if (item == kNoTreeItem) return;
        const int nWhat = Pick(3);
        std::ignore = nWhat == 0   ? m_host.OpenItem(kFolderTree, item)
                      : nWhat == 1 ? m_host.SelectItem(kFolderTree, item)
                                   : m_host.CloseItem(kFolderTree, item);
    }
    void DoubleClick(int nItem) {
        const std::string strName = nItem < 0 ? "" : Icons().Text(nItem);
        const bool bPicture = FindImageTypeOfName(strName) != ImageType::kUnknown;
        const CxImage image(List().Path() + "/" + strName, ImageType::kJpeg);
        EXPECT_EQ(m_host.DoubleClickIcon(kFileList, nItem), "");
        if (bPicture && image.IsValid()) m_model.Open(image.Pixels());
        if (bPicture && !image.IsValid()) ++m_nBoxes;
    }
    void Delete() {
        const bool bShift = Pick(2) == 0;
        const int nSelected = Icons().SelectedCount();
        if (nSelected == 0) return;
        if (nSelected == 1 && !bShift) ++m_nBoxes;
        m_platform.Answer(Pick(3) ? EBoxAnswer::Yes : EBoxAnswer::No);
        m_platform.AnswerDelete(Pick(3) > 0);
        m_platform.RefuseDeletes(Pick(6) == 0);
        EXPECT_EQ(m_host.KeyInIcons(kFileList, {kKeyDelete, false, bShift}), "");
        m_platform.ForgetAnswers();
    }
    // What the list has to show of its folder: read here in another way.
    void CheckList() {
        std::set<std::string> setFolders, setFiles;
        std::error_code error;
        for (const auto& entry : std::filesystem::directory_iterator(List().Path(), error)) {
            const std::string strName = entry.path().filename().string();
            if (entry.is_directory())
                setFolders.insert(strName);
            else if (entry.path().extension() == ".jpg")
                setFiles.insert(strName);
        }
        std::vector<std::string> arrNames(setFolders.begin(), setFolders.end());
        arrNames.insert(arrNames.end(), setFiles.begin(), setFiles.end());
        List().FillThumbnails();
        if (List().Path().empty()) return;
        List().FinishFill();
        ASSERT_EQ(Icons().Count(), static_cast<int>(arrNames.size()));
        for (int n = 0; n < Icons().Count(); ++n) {
            const std::string strName = arrNames[static_cast<std::size_t>(n)];
            ASSERT_EQ(Icons().Text(n), strName);
            const bool bFolder = setFolders.contains(strName);
            const CxImage image(List().Path() + "/" + strName, ImageType::kJpeg);
            ASSERT_EQ(Icons().Picture(n).IsEmpty(), !bFolder && !image.IsValid());
        }
    }
    void Browse() {
        const int nItem = Pick(10) == 0 || Icons().Count() == 0 ? -1 : Pick(Icons().Count());
        switch (Pick(12)) {
            case 0:
            case 1:
                for (int n = 0; n < 4; ++n) Grow();
                return;
            case 2:
            case 3:
            case 4:
                return WorkTree();
            case 5:
                EXPECT_EQ(m_host.ClickIcon(kFileList, nItem, Pick(2) ? kMouseCtrl : kMouseShift), "");
                return;
            case 6:
                return DoubleClick(nItem);
            case 7:
                EXPECT_EQ(m_host.RightPressIcon(kFileList, nItem), "");
                return;
            case 8:
                EXPECT_EQ(m_host.RightPressIcon(kFileList, nItem), "");
                return Delete();
            case 9:
                EXPECT_EQ(m_host.KeyInIcons(kFileList, {kKeyEnter, false, false}), "");
                return;
            case 10:
                return CheckList();
            default:
                m_platform.Tick(Pick(3));
        }
    }
    void CheckBrowser() {
        ASSERT_EQ(m_platform.WaitDepth(), List().IsFilling() ? 1 : 0);
        ASSERT_TRUE(State().IsUp(EMode::Thum) || !List().IsFilling());
        ASSERT_TRUE(List().IsFilling() || !Controls().IsShown(kProgress));
        const CTreeModel& tree = Tree().Model();
        const CTreeItem selected = tree.Selected();
        if (selected == kNoTreeItem) return;
        ASSERT_TRUE(tree.Exists(selected));
        // The root is read anew while it is selected.
        if (tree.Parent(selected) == kNoTreeItem) return;
        ASSERT_EQ(Tree().CurrentItem(), selected);
        ASSERT_EQ(Tree().GetPath(selected), Tree().CurrentPath());
    }

    // Any other button, any mouse move, any second that passes.
    void ClickAnything() {
        const auto& arrAll = Controls().All();
        const int nId = arrAll[static_cast<std::size_t>(Pick(static_cast<int>(arrAll.size())))].nId;
        m_dialog.OnHover(nId, false);
        if (Pick(4) == 0) m_platform.Tick(700);
        for (const int nSpecial :
             {kCmdOpen, kCmdNew, kCmdSave, kCmdUndo, kCmdRedo, kCmdReset, kCmdSize, kCmdFlipVertical,
              kCmdFlipHorizontal, kCmdTurnLeft, kCmdTurnRight, kCmdLarge, kCmdSmall, kCmdActual,
              kRadioImageSize, kRadioPhoneSize, kLabelImageSize, kLabelPhoneSize})
            if (nId == nSpecial) return;
        const EControlKind kind = Controls().Find(nId)->kind;
        if (kind != EControlKind::BitmapButton && kind != EControlKind::Check) return;
        if (!TryClick(nId)) return;
        if (nId == kCmdConnect) ++m_nBoxes;  // there is no port
        if (nId != kTextApply || !m_model.bOpen) return;
        // What the words look like is told elsewhere.
        m_model.Begin();
        m_model.now.work = Images().m_imgWork.Pixels();
    }

    void CheckModel() {
        ASSERT_EQ(State().m_bImageOpen, m_model.bOpen);
        ASSERT_EQ(Undos(), static_cast<int>(m_model.arrUndo.size()));
        ASSERT_EQ(Redos(), static_cast<int>(m_model.arrRedo.size()));
        ASSERT_EQ(Images().IsPhoneSize(), m_model.now.bPhone);
        if (!m_model.bOpen) return;
        ASSERT_EQ(Images().DisplaySize(), m_model.now.sizeDisplay);
        ASSERT_TRUE(Images().m_imgWork.Pixels() == m_model.now.work);
        ASSERT_TRUE(Images().m_imgOpened.Pixels() == m_model.opened);
    }

    void CheckState() {
        const CEditState& state = State();
        const CWorkingImages& images = Images();
        const bool bOpen = state.m_bImageOpen;
        ASSERT_EQ(Controls().IsChecked(kRadioImageSize), !images.IsPhoneSize());
        ASSERT_EQ(Controls().IsChecked(kRadioPhoneSize), images.IsPhoneSize());
        for (const auto* pImage : {&images.m_imgOpened, &images.m_imgWork, &images.m_imgDisplay})
            ASSERT_EQ(pImage->IsValid(), bOpen);
        for (const EMode nMode : kAllModes)
            ASSERT_EQ(Controls().IsShown(TabOf(nMode)), nMode != state.m_nMode);
        ASSERT_EQ(Controls().IsShown(kCanvas), bOpen && state.m_nMode != EMode::Thum);
        ASSERT_EQ(Controls().IsShown(kFileList), state.m_nMode == EMode::Thum);
        ASSERT_TRUE(Controls().IsEnabled(kCmdOpen) && Controls().IsEnabled(kCmdNew));
    }

    void CheckPicture() {
        const CWorkingImages& images = Images();
        if (!State().m_bImageOpen || State().m_nMode == EMode::Thum) return;
        ASSERT_EQ(Controls().IsEnabled(kCmdUndo), Undos() > 0);
        ASSERT_EQ(Controls().IsEnabled(kCmdRedo), Redos() > 0);
        if (State().IsAtWork(EMode::Effect) || State().IsAtWork(EMode::Stick)) {
            ASSERT_EQ(images.m_imgDisplay.GetSize(), images.RuledSize());
        }
        if (State().IsAtWork(EMode::Font)) {
            ASSERT_LE(images.m_imgDisplay.GetWidth(), 658);
            ASSERT_LE(images.m_imgDisplay.GetHeight(), 542);
        }
        if (State().IsUp(EMode::Draw)) {
            ASSERT_TRUE(m_dialog.Draw().Paper().Committed().Pixels() == images.m_imgWork.Pixels());
        }
        ASSERT_FALSE(m_dialog.Canvas().WantsPaint());
    }

    std::mt19937 m_random;
    CWalkModel m_model;
    int m_nBoxes = 0;  // that the step has to bring up
};

}  // namespace

TEST_F(WalkTest, TwentyThousandCommands) {
    const unsigned nSeed = std::random_device{}();
    m_random.seed(nSeed);
    for (int nStep = 0; nStep < 20000; ++nStep) {
        SCOPED_TRACE("seed " + std::to_string(nSeed) + ", step " + std::to_string(nStep));
        Act();
        m_host.Pump();
        m_platform.TakeProblems();
        m_platform.TakeAsked();
        ASSERT_EQ(static_cast<int>(m_platform.TakeBoxes().size()), std::exchange(m_nBoxes, 0));
        CheckModel();
        CheckState();
        CheckPicture();
        CheckBrowser();
        if (HasFailure()) return;
    }
    List().FinishFill();
}
