// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Typing.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QVariant>

void Typing::commit(QObject *field)
{
    QGuiApplication::inputMethod()->commit();
    const QString left = field ? field->property("preeditText").toString() : QString();
    if (left.isEmpty())
        return;
    QInputMethodEvent event;
    event.setCommitString(left);
    QCoreApplication::sendEvent(field, &event);
}
