// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

TestEnvironment::TestEnvironment()
{
    if (!m_home.isValid()) {
        qFatal("no folder for the tests: %s", qPrintable(m_home.errorString()));
    }
    const QDir home(m_home.path());
    for (const char *name : {"config", "data", "cache", "runtime", "tmp", "home"}) {
        home.mkpath(QString::fromLatin1(name));
    }
    const auto use = [&home](const char *variable, const char *folder) {
        qputenv(variable, QFile::encodeName(home.filePath(QString::fromLatin1(folder))));
    };
    use("XDG_CONFIG_HOME", "config");
    use("XDG_DATA_HOME", "data");
    use("XDG_CACHE_HOME", "cache");
    for (const char *variable : {"TMPDIR", "TMP", "TEMP"}) {
        use(variable, "tmp");
    }
    use("HOME", "home");
    QFile::setPermissions(home.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    use("XDG_RUNTIME_DIR", "runtime");
    // Nor is the desktop asked for its colours.
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    // Tickets are bytes in the local encoding, so the tests fix it.
    qputenv("LC_ALL", "C.UTF-8");
    // Without a console Windows would have the messages go to a debugger.
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    makeSettings();
}

TestEnvironment::~TestEnvironment()
{
    removeSettings();
}

void TestEnvironment::nameApplication()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Zelvan"));
    QCoreApplication::setApplicationName(QStringLiteral("ZelvanPOS"));
}
