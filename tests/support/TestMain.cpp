// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/NotHere.h"
#include "support/TestEnvironment.h"
#include "support/ZelvanTest.h"

#include <QGuiApplication>
#include <QMap>
#include <QMetaMethod>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {
constexpr char childPrefix[] = "child:";
// What ctest is told to take for a test that was left out.
constexpr int nothingToRun = 77;
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
    TestEnvironment::enter();
    QGuiApplication app(argc, argv);
    TestEnvironment::nameApplication();
    const QStringList arguments = QCoreApplication::arguments();
    const TestRegistry::Child child = children().value(arguments.at(1).mid(childPrefixLength));
    return child ? child(arguments.mid(2)) : 2;
}

QStringList functionsOf(const QObject &test)
{
    static const QStringList others{QStringLiteral("init"), QStringLiteral("cleanup"),
                                    QStringLiteral("initTestCase"),
                                    QStringLiteral("cleanupTestCase")};
    QStringList names;
    const QMetaObject *meta = test.metaObject();
    for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        const QString name = QString::fromLatin1(method.name());
        if (method.methodType() == QMetaMethod::Slot && method.access() == QMetaMethod::Private &&
            !others.contains(name) && !name.endsWith(QLatin1String("_data"))) {
            names += name;
        }
    }
    return names;
}

bool namesOneOf(const QStringList &functions, const QStringList &arguments)
{
    return std::any_of(arguments.cbegin(), arguments.cend(), [&functions](const QString &argument) {
        return functions.contains(argument.section(QLatin1Char(':'), 0, 0));
    });
}

/// The functions of the class that can run on this system, and a word about each that cannot. None
/// where there is nothing to run.
QStringList runnable(const QObject &test, const QMap<QString, QString> &left)
{
    QStringList names = functionsOf(test);
    for (auto each = left.cbegin(); each != left.cend(); ++each) {
        if (each.key() == QLatin1String("*")) {
            names.clear();
        } else if (names.removeAll(each.key()) == 0) {
            qFatal("there is no test of the name %s", qPrintable(each.key()));
        }
        std::printf("NOT HERE: %s: %s\n", qPrintable(each.key()), qPrintable(each.value()));
    }
    return names;
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
    const QString name = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (!registry().contains(name)) {
        return listClasses();
    }
    const TestEnvironment environment;
    QGuiApplication app(argc, argv);
    TestEnvironment::nameApplication();

    QStringList arguments = QCoreApplication::arguments();
    arguments.removeAt(1);
    const std::unique_ptr<QObject> test(registry().value(name)());
    const QMap<QString, QString> left = NotHere::reasons(name);
    if (!left.isEmpty() && !namesOneOf(functionsOf(*test), arguments)) {
        const QStringList names = runnable(*test, left);
        if (names.isEmpty()) {
            return nothingToRun;
        }
        arguments += names;
    }
    return QTest::qExec(test.get(), arguments);
}
