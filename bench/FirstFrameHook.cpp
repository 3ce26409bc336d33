// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QQuickWindow>

#include <chrono>
#include <cstdio>
#include <cstdlib>

/// Linked into a program, it ends it when its first window has shown its first frame, and prints
/// the moment (nanoseconds of the steady clock, which all processes share) and the resident memory
/// (kilobytes, 0 where the system does not tell).
namespace {
long residentKilobytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).simplified().split(' ').constFirst().toLong();
        }
    }
    return 0;
}

void tellAndEnd()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::printf(
        "%lld %ld\n",
        static_cast<long long>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()),
        residentKilobytes());
    std::fflush(stdout);
    std::_Exit(0);
}

class WindowWatch final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        auto *window = qobject_cast<QQuickWindow *>(receiver);
        if (window != nullptr && event->type() == QEvent::Expose) {
            // Direct, because a rendering thread may send it.
            connect(window, &QQuickWindow::frameSwapped, this, tellAndEnd, Qt::DirectConnection);
            QCoreApplication::instance()->removeEventFilter(this);
        }
        return false;
    }
};

void watchForTheFirstWindow()
{
    QCoreApplication *application = QCoreApplication::instance();
    application->installEventFilter(new WindowWatch(application));
}
} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForTheFirstWindow)
