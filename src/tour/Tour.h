#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <vector>

#include "tour/Person.h"

// One thing that a person does, and what should come of it.
struct CTourStep {
    QString strName;   // of the picture that is kept
    QString strTells;  // what is done and seen, in a line
    std::function<void(CPerson&)> fnAct;
    // Empty when all is as it should be, else what is wrong. Asked again and again until it is content or the
    // step's time is over.
    std::function<QString(CPerson&)> fnCheck;
    // The picture to keep where it is not what is seen when the check is content.
    std::function<QImage()> fnPicture = nullptr;
};

// Walks through the steps on the event loop, one after the other, while the program runs in the same loop: a
// step whose act opens a window that waits for an answer is followed by the step that gives it. Each step's
// picture goes into the folder as NN-name.png. A step that fails ends the walk.
class CTour {
  public:
    static constexpr int kStepMilliseconds = 8000;

    CTour(std::vector<CTourStep> arrSteps, QString strFolder);
    // Called when the walk is over, in the event loop.
    void Start(std::function<void()> fnDone);
    bool HasSucceeded() const { return m_bSucceeded; }

  private:
    void Act();
    void Look(int nMillisecondsLeft);
    bool Keep();
    void End(bool bSucceeded);

    std::vector<CTourStep> m_arrSteps;
    QString m_strFolder;
    std::function<void()> m_fnDone;
    CPerson m_person;
    std::size_t m_nStep = 0;
    bool m_bSucceeded = false;
};
