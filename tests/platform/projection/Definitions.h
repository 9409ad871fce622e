#pragma once

#include "platform/projection/ProjectionLibrary.h"

#include <QByteArray>
#include <QList>

/// The definition as the projection library gives it back.
inline QByteArray define(const QByteArray& definition) {
    return GetProjDefine(InitializeProj(definition.constData()));
}

/// Its shift: metres, arc-seconds, ppm.
inline QList<double> shiftOf(const QByteArray& definition) {
    const ProjTowgs84 shift = GetTowgs84(InitializeProj(definition.constData()));
    return {shift.dx, shift.dy, shift.dz, shift.rx, shift.ry, shift.rz, shift.ppm};
}

/// The numbers of a text that blanks part.
inline QList<double> numbersOf(const QByteArray& text) {
    QList<double> numbers;
    for (const QByteArray& number : text.split(' '))
        numbers << number.toDouble();
    return numbers;
}
