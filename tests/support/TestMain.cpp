// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestEnvironment.h"
#include "support/ZelvanTest.h"

#include <QGuiApplication>
#include <QMap>

#include <cstdio>
#include <memory>

namespace {
constexpr char childPrefix[] = "child:";
constexpr int childPrefixLength = sizeof(childPrefix) - 1;

QMap<QString, TestRegistry::Factory> &registry()
{
    static QMap<QString, TestRegistry::Factory> factories;
    return factories;
}

QMap<QString, TestRegistry::Child> &children()
{
    static QMap<QString, TestRegistry::Child> functions;
    return functions;
}

/// "program child:name arguments": runs in the surroundings that the calling test gave it.
int runChild(int argc, char **argv)
{
    QGuiApplication app(argc, argv);
    TestEnvironment::nameApplication();
    const QStringList arguments = QCoreApplication::arguments();
    const TestRegistry::Child child = children().value(arguments.at(1).mid(childPrefixLength));
    return child ? child(arguments.mid(2)) : 2;
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

bool TestRegistry::addChild(const char *name, Child child)
{
    children().insert(QString::fromLatin1(name), std::move(child));
    return true;
}

/// "program tst_class [QtTest arguments]": one class a process, each in surroundings of its own.
int main(int argc, char **argv)
{
    if (argc > 1 && qstrncmp(argv[1], childPrefix, childPrefixLength) == 0) {
        return runChild(argc, argv);
    }
    const TestEnvironment environment;
    QGuiApplication app(argc, argv);
    TestEnvironment::nameApplication();

    QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    if (!registry().contains(name)) {
        return listClasses();
    }
    arguments.removeAt(1);
    const std::unique_ptr<QObject> test(registry().value(name)());
    return QTest::qExec(test.get(), arguments);
}
