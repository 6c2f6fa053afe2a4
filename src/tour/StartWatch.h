#pragma once

#include <QElapsedTimer>
#include <QObject>

// Measures how long the main window takes from the end of the start-up picture to its first paint. Watches
// all events of the program from its making on.
class CStartWatch : public QObject {
  public:
    CStartWatch();
    // -1 as long as it has not been seen.
    qint64 Milliseconds() const { return m_nMilliseconds; }

  protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

  private:
    QElapsedTimer m_timer;
    qint64 m_nMilliseconds = -1;
};
