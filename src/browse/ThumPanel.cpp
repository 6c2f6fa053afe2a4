#include "browse/ThumPanel.h"

CThumPanel::CThumPanel(CDrives& drives, const CPicFileList::CEnvironment& env)
    : m_list(env), m_tree(drives, env.host, m_list, env.folders.Separator()) {
    m_list.SetTree(&m_tree);
}

void CThumPanel::ReturnToFolder() {
    m_tree.ReturnToCurrent();
    m_list.FillThumbnails();
}

void CThumPanel::FollowFolder(const std::string& strFolder) {
    const std::string strPath = m_tree.FollowFolder(strFolder);
    if (!strPath.empty()) m_list.SetPath(strPath);
}

void CThumPanel::FollowTake(const std::string& strFolder, bool bShow) {
    m_list.SetPath(m_tree.FollowTake(strFolder));
    if (bShow) m_tree.ReturnToCurrent();
}
