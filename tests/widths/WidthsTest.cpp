// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/SystemTheme.h"
#include "core/Theme.h"
#include "core/Translation.h"
#include "support/ZelvanTest.h"
#include "widths/Layout.h"
#include "widths/LongStore.h"
#include "widths/Stage.h"
#include "widths/Views.h"

#include <QDir>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTranslator>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

/// The whole program on every size of screen that it is meant for. The surroundings choose the run:
/// WIDTHS_LANGUAGE ("zh_CN"), WIDTHS_DARK, Qt's own QT_SCALE_FACTOR; WIDTHS_PICTURES names a folder
/// for a picture of every view.
class WidthsTest : public ZelvanTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everythingFits_data();
    void everythingFits();
    void cleanupTestCase();

private:
    void keepPicture(const QString &view) const;

    // In the order in which they are needed.
    QTranslator m_translator;
    std::optional<LongStore> m_store;
    std::unique_ptr<SystemTheme> m_systemTheme;
    std::unique_ptr<Theme> m_theme;
    std::unique_ptr<Stage> m_stage;
};

namespace {
/// What a window gets of the screens that tills have, with and without what a title and a task bar
/// take of their height. Scaled up, only large screens are left with enough.
QList<QSize> sizes(qreal scale)
{
    QList<QSize> sizes{{1024, 768}, {1024, 698}, {1280, 720}};
    if (scale < 1.1) {
        sizes += {{1280, 650}, {1280, 800}, {1366, 768}, {1920, 1080}};
    } else {
        sizes += {QSize(1920, 1080) / scale};
    }
    return sizes;
}
} // namespace

void WidthsTest::initTestCase()
{
    QQuickStyle::setStyle(u"Fusion"_s);
    const QString language = qEnvironmentVariable("WIDTHS_LANGUAGE", u"en_US"_s);
    QCOMPARE(installTranslation(m_translator, language), language == "zh_CN"_L1);
    m_store.emplace(language);
    m_systemTheme = std::make_unique<SystemTheme>(qEnvironmentVariableIsSet("WIDTHS_DARK"));
    m_theme = std::make_unique<Theme>(m_systemTheme.get());
    m_store->publish(*m_systemTheme, *m_theme);
    m_stage = std::make_unique<Stage>();
}

void WidthsTest::cleanupTestCase()
{
    m_stage.reset();
}

void WidthsTest::everythingFits_data()
{
    QTest::addColumn<int>("number");
    const QList<View> views = allViews();
    for (int i = 0; i < views.size(); ++i) {
        QTest::newRow(qPrintable(views.at(i).name)) << i;
    }
}

void WidthsTest::everythingFits()
{
    QFETCH(int, number);
    const View view = allViews().at(number);
    QList<QSize> windows = sizes(m_stage->window()->effectiveDevicePixelRatio());
    if (view.ofTheStart) {
        windows.prepend(QSize(850, 520));
    }

    m_stage->resize(windows.constFirst());
    m_stage->show(view.screen, view.properties);
    for (const View::Step &step : view.steps) {
        const QString fault = m_stage->run(step.document, step.script);
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
    }

    QStringList faults;
    for (const QSize size : std::as_const(windows)) {
        m_stage->resize(size);
        keepPicture(view.name);
        Layout layout(m_stage->window(), m_store->names());
        const QStringList found = layout.faults([this] { m_stage->settle(); });
        for (const QString &fault : found) {
            faults.append(u"%1x%2: %3"_s.arg(QString::number(size.width()),
                                             QString::number(size.height()), fault));
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(u'\n' + faults.join(u'\n')));
}

void WidthsTest::keepPicture(const QString &view) const
{
    const QString folder = qEnvironmentVariable("WIDTHS_PICTURES");
    if (folder.isEmpty()) {
        return;
    }
    const QSize size = m_stage->window()->size();
    const QString name = QString(view).replace(u": "_s, u"-"_s).replace(u' ', u'_');
    const QString file =
        u"%1-%2x%3.png"_s.arg(name, QString::number(size.width()), QString::number(size.height()));
    QVERIFY(m_stage->window()->grabWindow().save(QDir(folder).filePath(file)));
}

ZELVAN_TEST(WidthsTest)
#include "WidthsTest.moc"
