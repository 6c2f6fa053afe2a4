#include "Animation.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

using CNumbers = std::vector<double>;

std::optional<CNumbers> ReadNumbers(const QString& strText) {
    static const QRegularExpression separator("[\\s,]+");
    CNumbers arrNumbers;
    for (const QString& strNumber : strText.split(separator, Qt::SkipEmptyParts)) {
        bool bNumber = false;
        arrNumbers.push_back(strNumber.toDouble(&bNumber));
        if (!bNumber) return std::nullopt;
    }
    return arrNumbers;
}

// The values of an animation, all of one length, or nothing.
std::optional<std::vector<CNumbers>> ReadValues(const QString& strText) {
    std::vector<CNumbers> arrValues;
    for (const QString& strValue : strText.split(';')) {
        const std::optional<CNumbers> numbers = ReadNumbers(strValue);
        if (!numbers || numbers->empty()) return std::nullopt;
        if (!arrValues.empty() && numbers->size() != arrValues[0].size()) return std::nullopt;
        arrValues.push_back(*numbers);
    }
    return arrValues;
}

// When each of nCount values is reached, from 0 to 1: evenly spaced unless the text says otherwise.
std::optional<CNumbers> ReadKeyTimes(const QString& strText, size_t nCount) {
    CNumbers arrTimes;
    if (strText.isEmpty()) {
        for (size_t i = 0; i < nCount; ++i)
            arrTimes.push_back(static_cast<double>(i) / static_cast<double>(std::max<size_t>(nCount - 1, 1)));
        return arrTimes;
    }
    std::optional<CNumbers> numbers = ReadNumbers(QString(strText).replace(';', ' '));
    if (!numbers || numbers->size() != nCount || numbers->front() != 0 || numbers->back() != 1 ||
        !std::is_sorted(numbers->begin(), numbers->end()))
        return std::nullopt;
    return numbers;
}

// A clock value like "-180ms" or "3s" in milliseconds.
std::optional<double> ReadClock(const QString& strText) {
    static const QRegularExpression clock("^(-?[0-9.]+)(ms|s)$");
    const QRegularExpressionMatch match = clock.match(strText.trimmed());
    if (!match.hasMatch()) return std::nullopt;
    return match.captured(1).toDouble() * (match.captured(2) == "s" ? 1000 : 1);
}

QString Text(const CNumbers& arrNumbers) {
    QStringList arrTexts;
    for (const double fNumber : arrNumbers) arrTexts << QString::number(fNumber, 'g', 12);
    return arrTexts.join(' ');
}

// The value at fPhase, from 0 up to but not including 1.
CNumbers Between(const std::vector<CNumbers>& arrValues, const CNumbers& arrTimes, double fPhase) {
    const auto itNext = std::upper_bound(arrTimes.begin(), arrTimes.end(), fPhase);
    const auto nNext = std::min(static_cast<size_t>(itNext - arrTimes.begin()), arrValues.size() - 1);
    const size_t nLast = nNext == 0 ? 0 : nNext - 1;
    const double fSpan = arrTimes[nNext] - arrTimes[nLast];
    const double fPart = fSpan > 0 ? (fPhase - arrTimes[nLast]) / fSpan : 0;
    CNumbers arrBetween;
    for (size_t i = 0; i < arrValues[nLast].size(); ++i)
        arrBetween.push_back(arrValues[nLast][i] + (arrValues[nNext][i] - arrValues[nLast][i]) * fPart);
    return arrBetween;
}

// Gives the element around the animation what it has at that moment. Returns false if it cannot be
// understood.
bool Settle(const QDomElement& animation, int nMilliseconds) {
    const auto values = ReadValues(animation.attribute("values"));
    const auto length = ReadClock(animation.attribute("dur"));
    const auto begin = ReadClock(animation.attribute("begin", "0s"));
    if (!values || !length || *length <= 0 || !begin || *begin > 0) return false;
    const auto times = ReadKeyTimes(animation.attribute("keyTimes"), values->size());
    if (!times) return false;
    const double fRounds = (nMilliseconds - *begin) / *length;
    const QString strValue = Text(Between(*values, *times, fRounds - std::floor(fRounds)));

    QDomElement around = animation.parentNode().toElement();
    if (animation.tagName() == "animateTransform") {
        around.setAttribute("transform", animation.attribute("type") + '(' + strValue + ')');
    } else {
        around.setAttribute(animation.attribute("attributeName"), strValue);
    }
    return true;
}

bool IsAnimation(const QString& strTag) {
    return strTag.startsWith("animate") || strTag == "set";
}

// All elements below the node in the order of the file; the list does not change with the document.
void Collect(const QDomElement& element, std::vector<QDomElement>& arrElements) {
    arrElements.push_back(element);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        Collect(child, arrElements);
}

}  // namespace

std::optional<QByteArray> StillOf(const QByteArray& arrDrawing, const QString& strAct, int nMilliseconds) {
    QDomDocument document;
    if (!document.setContent(arrDrawing)) return std::nullopt;
    std::vector<QDomElement> arrElements;
    Collect(document.documentElement(), arrElements);
    bool bShown = false;
    for (QDomElement& element : arrElements) {
        if (element.attribute("id") == strAct) {
            element.removeAttribute("display");
            bShown = true;
        }
        if (!IsAnimation(element.tagName())) continue;
        const bool bKnown = element.tagName() == "animate" || element.tagName() == "animateTransform";
        if (!bKnown || !Settle(element, nMilliseconds)) return std::nullopt;
        element.parentNode().removeChild(element);
    }
    if (!bShown) return std::nullopt;
    return document.toByteArray(-1);
}
