#include "tour/Tour.h"

#include <QTimer>
#include <cstdio>

#include "tour/Screen.h"

namespace {

// What a step sets off has come to rest after that time.
constexpr int kSettleMilliseconds = 60;
constexpr int kLookMilliseconds = 25;

}  // namespace

CTour::CTour(std::vector<CTourStep> arrSteps, QString strFolder)
    : m_arrSteps(std::move(arrSteps)), m_strFolder(std::move(strFolder)) {}

void CTour::Start(std::function<void()> fnDone) {
    m_fnDone = std::move(fnDone);
    QTimer::singleShot(0, [this] { Act(); });
}

// The look is planned before the act, which may not return until a later step has answered.
void CTour::Act() {
    m_person.ForgetFault();
    QTimer::singleShot(kSettleMilliseconds, [this] { Look(kStepMilliseconds); });
    m_arrSteps[m_nStep].fnAct(m_person);
}

void CTour::Look(int nMillisecondsLeft) {
    const CTourStep& step = m_arrSteps[m_nStep];
    const QString strWrong = m_person.Fault().isEmpty() ? step.fnCheck(m_person) : m_person.Fault();
    if (!strWrong.isEmpty() && nMillisecondsLeft > 0 && m_person.Fault().isEmpty()) {
        QTimer::singleShot(kLookMilliseconds,
                           [this, nMillisecondsLeft] { Look(nMillisecondsLeft - kLookMilliseconds); });
        return;
    }
    const bool bKept = Keep();
    std::printf("%s %02zu %-18s %s\n", strWrong.isEmpty() && bKept ? "ok  " : "FAIL", m_nStep + 1,
                qUtf8Printable(step.strName), qUtf8Printable(strWrong.isEmpty() ? step.strTells : strWrong));
    std::fflush(stdout);
    if (!strWrong.isEmpty() || !bKept) return End(false);
    if (++m_nStep == m_arrSteps.size()) return End(true);
    QTimer::singleShot(0, [this] { Act(); });
}

bool CTour::Keep() {
    const CTourStep& step = m_arrSteps[m_nStep];
    const QString strPath = QStringLiteral("%1/%2-%3.png")
                                .arg(m_strFolder)
                                .arg(m_nStep + 1, 2, 10, QLatin1Char('0'))
                                .arg(step.strName);
    if ((step.fnPicture ? step.fnPicture() : GrabScreen()).save(strPath)) return true;
    std::fprintf(stderr, "fotarium-tour: cannot write %s\n", qUtf8Printable(strPath));
    return false;
}

void CTour::End(bool bSucceeded) {
    m_bSucceeded = bSucceeded;
    m_fnDone();
}
