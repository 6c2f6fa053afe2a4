#include <gtest/gtest.h>

#include <sstream>

#include "engines/linkset/FileSet.h"
#include "engines/linkset/UserSet.h"
#include "support/TempFolder.h"
#include "workbench/Workbench.h"

namespace {

class DataVerbs : public testing::Test {
  protected:
    int Run(const std::string& strVerb, const std::string& strRecords) {
        std::ostringstream out;
        std::ostringstream errors;
        const int nStatus = RunWorkbench({strVerb, m_folder.Write("in", strRecords), m_strOut}, out, errors);
        m_strError = errors.str();
        return nStatus;
    }

    CTempFolder m_folder;
    std::string m_strOut = m_folder.Path("out");
    std::string m_strError;
};

TEST_F(DataVerbs, MakeDataFilesOfText) {
    ASSERT_EQ(Run("filedat", "7\t200\t0\t0\tphoto/a\tb\r\n4294967295\t4294967295\t-1\t1\t\n"), kDone)
        << m_strError;
    CFILESet files;
    files.m_strFileName = m_strOut;
    ASSERT_TRUE(files.Open());
    EXPECT_EQ(files.m_nDataArray, (std::vector<CFileItem>{{7, 200, 0, 0, "photo/a\tb", 0},
                                                          {4294967295U, 4294967295U, -1, 1, "", 1}}));

    ASSERT_EQ(Run("userdat", "1\t-1\t176\t144\t0\t1\t1\t640x480\t-2147483648x0\n2\t9\t0\t0\t1\t0\t0"), kDone)
        << m_strError;
    CUserSet users;
    users.m_strFileName = m_strOut;
    ASSERT_TRUE(users.Open());
    EXPECT_EQ(users.m_nDataArray,
              (std::vector<CUserItem>{{1, -1, 176, 144, 0, 1, 1, {{640, 480}, {INT32_MIN, 0}}},
                                      {2, 9, 0, 0, 1, 0, 0, {}}}));
}

TEST_F(DataVerbs, TellTheLineThatIsNoRecord) {
    const std::string strUser = "1\t2\t3\t4\t0\t0", strFile = "1\t2\t0\t0";
    for (const std::string& strLine :
         {strFile, std::string(), "-" + strFile + "\ta", "99999999999" + strFile + "\ta"})
        EXPECT_EQ(Run("filedat", std::string(strFile).append("\ta\n").append(strLine).append("\n")),
                  kCannotBeDone)
            << strLine;
    for (const std::string& strLine :
         {strUser, strUser + "\t1\t640", strUser + "\t1\t6x4x1", strUser + "\t1\t"})
        EXPECT_EQ(Run("userdat", std::string(strUser).append("\t1\n").append(strLine).append("\n")),
                  kCannotBeDone)
            << strLine;
    EXPECT_EQ(m_strError, "workbench: " + m_folder.Path("in") + " line 2: no record\n");
    EXPECT_EQ(m_folder.Names(), std::set<std::string>{"in"});
}

}  // namespace
