#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

// One moment of an animated drawing as a drawing that stands still: of the groups that the drawing hides,
// strAct names the one to show, and every animation gives way to the value that it has nMilliseconds after
// its start.
//
// What is understood of SVG's animation: <animate> of attributes that are numbers or lists of them, and
// <animateTransform>, each with values, dur, and where they are needed keyTimes and a begin at or before 0.
// They run on without an end. Nothing if the drawing cannot be read, lacks the group, or animates in another
// way.
std::optional<QByteArray> StillOf(const QByteArray& arrDrawing, const QString& strAct, int nMilliseconds);
