// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>
#include <QRegularExpression>
#include <QTest>

#include <functional>

/// Base of every test class: a test fails on any warning it did not announce with
/// QTest::ignoreMessage. A class with an `init` of its own calls this one first.
class ZelvanTest : public QObject
{
    Q_OBJECT

protected slots:
    void init();

protected:
    /// Announces one log line: the text, followed by anything.
    static void expectLog(QtMsgType type, const QString &startOfText);
};

namespace TestRegistry {
using Factory = std::function<QObject *()>;
/// Makes the class known to the test program under its lower-case name.
bool add(const char *className, Factory factory);

using Child = std::function<int(const QStringList &arguments)>;
/// Makes a function known that the test program runs in a process of its own; see ChildProcess.
bool addChild(const char *name, Child child);
} // namespace TestRegistry

#define ZELVAN_TEST(Class)                                                                         \
    static const bool registered##Class =                                                          \
        TestRegistry::add(#Class, [] { return static_cast<QObject *>(new Class); });

#define ZELVAN_TEST_CHILD(function)                                                                \
    static const bool registeredChild##function = TestRegistry::addChild(#function, function);
