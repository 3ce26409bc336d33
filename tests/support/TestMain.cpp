// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestEnvironment.h"
#include "support/ZelvanTest.h"

#include <QGuiApplication>
#include <QMap>

#include <cstdio>
#include <memory>

namespace {
QMap<QString, TestRegistry::Factory> &registry()
{
    static QMap<QString, TestRegistry::Factory> factories;
    return factories;
}

int listClasses()
{
    for (auto it = registry().cbegin(); it != registry().cend(); ++it) {
        std::printf("%s\n", qPrintable(it.key()));
    }
    return 2;
}
} // namespace

bool TestRegistry::add(const char *className, Factory factory)
{
    registry().insert(QString::fromLatin1(className).toLower(), std::move(factory));
    return true;
}

/// "program tst_class [QtTest arguments]": one class a process, each in surroundings of its own.
int main(int argc, char **argv)
{
    const TestEnvironment environment;
    QGuiApplication app(argc, argv);
    environment.nameApplication();

    QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    if (!registry().contains(name)) {
        return listClasses();
    }
    arguments.removeAt(1);
    const std::unique_ptr<QObject> test(registry().value(name)());
    return QTest::qExec(test.get(), arguments);
}
