#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <random>

#include "engines/linkset/DataFile.h"
#include "engines/linkset/FileSet.h"
#include "engines/linkset/UserSet.h"
#include "support/TempFolder.h"

namespace {

constexpr std::size_t kLengthPlace = 12;
constexpr std::size_t kSumPlace = 16;

void PutNumber(std::string& strBytes, std::size_t nPlace, std::uint32_t n) {
    for (unsigned i = 0; i < 4; ++i) strBytes[nPlace + i] = static_cast<char>(n >> (8 * i));
}

// Makes length and sum right, so that only what the records say is wrong.
void Mend(std::string& strBytes) {
    if (strBytes.size() < kDataHeadBytes) return;
    const std::size_t nContent = strBytes.size() - kDataHeadBytes;
    PutNumber(strBytes, kLengthPlace, static_cast<std::uint32_t>(nContent));
    const auto* const pContent = reinterpret_cast<const std::uint8_t*>(strBytes.data()) + kDataHeadBytes;
    PutNumber(strBytes, kSumPlace, DataSum(pContent, nContent));
}

// A file that no disk has to keep up with.
class CMemoryFile {
  public:
    CMemoryFile() : m_nFile(memfd_create("fotarium", MFD_CLOEXEC)) {}
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;
    ~CMemoryFile() { close(m_nFile); }
    // Its path, when it holds just these bytes.
    std::string Fill(const std::string& strBytes) const {
        const auto nSize = static_cast<ssize_t>(strBytes.size());
        EXPECT_EQ(ftruncate(m_nFile, nSize), 0);
        EXPECT_EQ(pwrite(m_nFile, strBytes.data(), strBytes.size(), 0), nSize);
        return "/proc/self/fd/" + std::to_string(m_nFile);
    }

  private:
    int m_nFile;
};

CFILESet SomeFiles() {
    CFILESet set;
    set.m_nDataArray = {{7, 200'000, 0, 0, "photo/IMG0001", 0},
                        {0xFFFFFFFE, 0xFFFFFFFF, 1, 1, "\xE7\x85\xA7 \xFF\n?", 1},
                        {0, 0, -3, 2, "", 2},
                        {7, 1, 0, 0, std::string(40, 'n'), 3}};
    return set;
}

CUserSet SomeUsers() {
    CUserSet set;
    set.m_nDataArray = {{0x80000001, -1, 176, 144, 0, 1, 1, {{640, 480}, {176, 144}}},
                        {3, 100, -1, INT32_MIN, 1, 0, 0, {}},
                        {3, 0, 0, 0, 0, 0, 0, std::vector<CSize>(5, {INT32_MAX, 0})}};
    return set;
}

template <typename TSet>
class DataFiles : public testing::Test {
  protected:
    // Opens a file of these bytes; what stood in the set before has to go in any case.
    bool Opens(TSet& set, const std::string& strBytes) {
        set = Some();
        set.m_strFileName = m_memory.Fill(strBytes);
        return set.Open();
    }
    void ExpectNoRecord(const std::string& strBytes, const std::string& strWhat) {
        TSet set;
        EXPECT_FALSE(Opens(set, strBytes)) << strWhat;
        EXPECT_TRUE(set.m_nDataArray.empty()) << strWhat;
    }
    std::string Whole() {
        TSet set = Some();
        set.m_strFileName = m_folder.Path("whole.dat");
        EXPECT_TRUE(set.Write());
        return ReadBytes(set.m_strFileName);
    }
    static TSet Some() {
        if constexpr (std::is_same_v<TSet, CFILESet>) {
            return SomeFiles();
        } else {
            return SomeUsers();
        }
    }

    CTempFolder m_folder;

  private:
    CMemoryFile m_memory;
};

using CBothSets = testing::Types<CFILESet, CUserSet>;
TYPED_TEST_SUITE(DataFiles, CBothSets);

TYPED_TEST(DataFiles, GiveBackEveryFieldAndTakeTheNextRecord) {
    TypeParam set;
    EXPECT_TRUE(this->Opens(set, this->Whole()));
    EXPECT_EQ(set.m_nDataArray, this->Some().m_nDataArray);

    set.m_strFileName = this->m_folder.Write("x.dat", "broken");
    EXPECT_FALSE(set.Open());
    ASSERT_TRUE(set.Write());
    EXPECT_TRUE(set.Open()) << "no records are no fault";
    for (const std::string& strNowhere : {this->m_folder.Path("none/x.dat"), this->m_folder.Path()}) {
        set.m_strFileName = strNowhere;
        EXPECT_FALSE(set.Write());
        EXPECT_FALSE(set.Open());
    }
    EXPECT_EQ(this->m_folder.Names(), (std::set<std::string>{"whole.dat", "x.dat"}));
}

TYPED_TEST(DataFiles, NoRecordInABrokenFile) {
    const std::string strWhole = this->Whole();
    for (std::size_t n = 0; n < strWhole.size(); ++n) this->ExpectNoRecord(strWhole.substr(0, n), "cut");
    this->ExpectNoRecord(strWhole + '\0', "longer");
    for (std::size_t nBit = 0; nBit < strWhole.size() * 8; ++nBit) {
        std::string strBytes = strWhole;
        strBytes[nBit / 8] = static_cast<char>(strBytes[nBit / 8] ^ (1 << nBit % 8));
        this->ExpectNoRecord(strBytes, "bit " + std::to_string(nBit));
    }
    // The other kind's file, and more content than records.
    std::string strBytes = strWhole;
    strBytes[0] = static_cast<char>('F' + 'U' - strBytes[0]);
    this->ExpectNoRecord(strBytes, "mark");
    strBytes = strWhole + std::string(4, '\0');
    Mend(strBytes);
    this->ExpectNoRecord(strBytes, "something behind the last record");
}

// What lies in the folder may be anything. Where the sum was made right again, records may come out of it,
// but never more than the file has room for.
TYPED_TEST(DataFiles, FiftyThousandBrokenFilesDoNoHarm) {
    const std::string strWhole = this->Whole();
    std::mt19937 random(20260);
    const auto Below = [&random](std::size_t n) { return n == 0 ? 0 : random() % n; };
    int nOpened = 0;
    for (int i = 0; i < 50'000; ++i) {
        std::string strBytes = i % 3 == 0 ? strWhole : strWhole.substr(0, 24 + Below(180));
        if (i % 16 == 0) std::ranges::generate(strBytes, [&] { return static_cast<char>(random()); });
        const bool bMend = i % 2 == 0;
        for (std::size_t n = 1 + Below(4); n > 0; --n) {
            const std::size_t nPlace = Below(strBytes.size() - 4);
            const std::uint32_t arrNumbers[] = {0, 1, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF, 2, 3};
            switch (Below(4)) {
                case 0:
                    strBytes[nPlace] = static_cast<char>(random());
                    break;
                case 1:
                    PutNumber(strBytes, nPlace / 4 * 4, arrNumbers[Below(7)]);
                    break;
                case 2:
                    strBytes.insert(nPlace, Below(40), static_cast<char>(Below(3)));
                    break;
                default:
                    PutNumber(strBytes, 8, static_cast<std::uint32_t>(Below(4)));
                    break;
            }
        }
        if (bMend) Mend(strBytes);
        if (bMend && i % 16 != 0) strBytes.replace(0, 8, strWhole, 0, 8);
        TypeParam set;
        const bool bOpened = this->Opens(set, strBytes);
        nOpened += bOpened;
        ASSERT_TRUE(bOpened || set.m_nDataArray.empty()) << i;
        ASSERT_TRUE(!bOpened || bMend || strBytes == strWhole) << i;
        ASSERT_LE(set.m_nDataArray.size(), strBytes.size() / 20) << i;
    }
    EXPECT_GT(nOpened, 500) << "the records themselves are hardly reached";
}

// The form is on disks and in other people's libraries: it stays what it is, byte by byte.
TEST(DataForm, IsFixed) {
    const CTempFolder folder;
    CFILESet files;
    files.m_strFileName = folder.Path("FILE.Dat");
    files.m_nDataArray = {{0x01020304, 5, 1, 0, "a/b", 0}};
    ASSERT_TRUE(files.Write());
    const std::string strContent("\x04\x03\x02\x01\x05\0\0\0\x01\0\0\0\0\0\0\0\x03\0\0\0a/b", 23);
    EXPECT_EQ(ReadBytes(files.m_strFileName).substr(0, 16),
              std::string("FDAT\x01\0\0\0\x01\0\0\0\x17\0\0\0", 16));
    EXPECT_EQ(ReadBytes(files.m_strFileName).substr(kDataHeadBytes), strContent);
    EXPECT_EQ(DataSum(reinterpret_cast<const std::uint8_t*>("123456789"), 9), 0xCBF43926U);

    CUserSet users;
    users.m_strFileName = folder.Path("User.Dat");
    users.m_nDataArray = {{1, -1, 2, 3, 4, 5, 6, {{7, 8}}}};
    ASSERT_TRUE(users.Write());
    EXPECT_EQ(
        ReadBytes(users.m_strFileName).substr(kDataHeadBytes),
        std::string("\x01\0\0\0\xFF\xFF\xFF\xFF\x02\0\0\0\x03\0\0\0\x04\0\0\0\x05\0\0\0\x06\0\0\0\x01\0\0"
                    "\0\x07\0\0\0\x08\0\0\0",
                    40));
}

}  // namespace
