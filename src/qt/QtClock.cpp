#include "qt/QtClock.h"

#include <QDate>

CDate CQtClock::Today() {
    const QDate date = QDate::currentDate();
    return {date.year(), date.month(), date.day()};
}
