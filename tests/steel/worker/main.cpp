// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/Logging.h"
#include "steel/worker/Acknowledgement.h"
#include "steel/worker/StoreContent.h"
#include "steel/worker/Till.h"
#include "steel/worker/Trade.h"

#include <QCoreApplication>
#include <QMap>

#include <cstdio>
#include <functional>

namespace {
using Command = std::function<bool(const QStringList &arguments)>;

constexpr int usualAttempts = 3;

int answered(const char *what, bool answer)
{
    acknowledge(QByteArray("answer ") + what + (answer ? " true" : " false"));
    return 0;
}

bool setUp(const QStringList &arguments)
{
    TillStart start;
    SetupService setup(&start.app, &start.database);
    return setup.initializeApp(arguments.value(0)) == SetupService::Success;
}

bool furnish(const QStringList &)
{
    Till till;
    return StoreContent::create(till);
}

/// Nothing but the start; everything that reads at once has read.
bool start(const QStringList &)
{
    const Till till;
    acknowledge("state " + QByteArray::number(till.state));
    return till.state == AppService::Ready;
}

int attemptsFrom(const QString &text)
{
    return text.isEmpty() ? usualAttempts : text.toInt();
}

/// SEED [ROUNDS [ATTEMPTS ["counter"]]]; for ever without a number of rounds.
bool trade(const QStringList &arguments)
{
    Till till;
    acknowledge("state " + QByteArray::number(till.state));
    if (till.state != AppService::Ready) {
        return false;
    }
    const int rounds = arguments.value(1).toInt();
    Trade evening(till, arguments.value(0).toUInt(), attemptsFrom(arguments.value(2)));
    if (arguments.value(3) == QLatin1String("counter")) {
        evening.leaveTables();
    }
    for (int round = 0; rounds == 0 || round < rounds; ++round) {
        evening.round();
    }
    return true;
}

/// SEED [ATTEMPTS]
bool settle(const QStringList &arguments)
{
    Till till;
    Trade(till, arguments.value(0).toUInt(), attemptsFrom(arguments.value(1))).settle();
    return till.repositories.orderSessions.getOpenSessions().isEmpty();
}

bool backup(const QStringList &)
{
    Till till;
    return till.services.databaseMaintenance.backupDatabase();
}

bool restore(const QStringList &arguments)
{
    Till till;
    return till.services.databaseMaintenance.restoreDatabase(arguments.value(0));
}

bool open(const QStringList &arguments)
{
    Till till;
    return till.services.databaseMaintenance.openDatabase(arguments.value(0));
}

bool move(const QStringList &arguments)
{
    Till till;
    return till.services.databaseMaintenance.moveDatabase(arguments.value(0));
}

bool replace(const QStringList &arguments)
{
    Till till;
    return till.services.databaseMaintenance.replaceDatabase(arguments.value(0));
}

const QMap<QString, Command> &commands()
{
    static const QMap<QString, Command> all{
        {QStringLiteral("setup"), setUp},     {QStringLiteral("furnish"), furnish},
        {QStringLiteral("start"), start},     {QStringLiteral("trade"), trade},
        {QStringLiteral("settle"), settle},   {QStringLiteral("backup"), backup},
        {QStringLiteral("restore"), restore}, {QStringLiteral("open"), open},
        {QStringLiteral("move"), move},       {QStringLiteral("replace"), replace},
    };
    return all;
}
} // namespace

/// "steel_worker COMMAND [ARGUMENT...]": one start of the till and one thing done with it.
/// What the user is told stands on the standard output, one line each.
int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Zelvan"));
    QCoreApplication::setApplicationName(QStringLiteral("ZelvanPOS"));
    initLogging();

    const QStringList arguments = QCoreApplication::arguments();
    const QString name = arguments.value(1);
    if (!commands().contains(name)) {
        std::fputs(qPrintable(QStringList(commands().keys()).join(QLatin1Char('\n'))), stderr);
        return 2;
    }
    return answered(qPrintable(name), commands().value(name)(arguments.mid(2)));
}
