// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/BenchPage.h"
#include "bench/BenchStore.h"
#include "bench/Figures.h"
#include "bench/FrameMeter.h"
#include "bench/HistoryGenerator.h"
#include "bench/PlainDatabase.h"
#include "core/SystemTheme.h"
#include "core/Theme.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QFile>
#include <QGuiApplication>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickStyle>
#include <QStyleHints>
#include <QTemporaryDir>
#include <QtMath>

namespace {
constexpr int planItems = 100;
constexpr int dishes = 1000;
/// The plan's row of the table that is dragged: near the middle.
constexpr int draggedRow = 45;

/// As many items as fit on a large screen, every tenth of them a wall, on the floor that opens
/// first.
void addPlan(PlainDatabase &file)
{
    const qint64 floorId = PlainInsert(
        file, "INSERT INTO floors (name, floor_number, sort_order) VALUES (?, 0, 0)")("Plan");
    PlainInsert table(file, "INSERT INTO tables (table_name, capacity, status) "
                            "VALUES (?, ?, 'available')");
    PlainInsert drawnTable(file, "INSERT INTO canvas_items (floor_id, table_id, type, label, x, y, "
                                 "width, height, z_order, metadata) "
                                 "VALUES (?, ?, 'table', ?, ?, ?, 80, 80, ?, ?)");
    PlainInsert wall(file, "INSERT INTO canvas_items (floor_id, type, label, x, y, width, height, "
                           "z_order, metadata) VALUES (?, 'wall', '', ?, ?, 120, 10, ?, '{}')");
    static const char *const shapes[] = {"square", "rectangle", "circle"};
    for (int row = 0; row < planItems; ++row) {
        const double x = 40.0 + 145.0 * (row % 13);
        const double y = 30.0 + 120.0 * (row / 13);
        if (row % 10 == 9) {
            wall(floorId, x, y, row);
            continue;
        }
        const QByteArray name = 'P' + QByteArray::number(row + 1);
        drawnTable(floorId, table(name, 2 + row % 7), name, x, y, row,
                   QByteArray("{\"table_type\":\"") + shapes[row % 3] + "\"}");
    }
}

/// The new category.
int addDishes(PlainDatabase &file)
{
    const qint64 category =
        PlainInsert(file, "INSERT INTO categories (category) VALUES (?)")("Everything");
    PlainInsert item(file,
                     "INSERT INTO menu (item, category_id, price, portion_size, is_available, "
                     "is_taxable) VALUES (?, ?, ?, ?, ?, ?)");
    for (int number = 1; number <= dishes; ++number) {
        item("Dish " + QByteArray::number(number), category, 300 + number,
             number % 3 == 0 ? "Large" : "", int(number % 7 != 0), int(number % 5 != 0));
    }
    return int(category);
}

int prepare(const QString &path)
{
    PlainDatabase file(path);
    file.run("BEGIN");
    addPlan(file);
    const int category = addDishes(file);
    file.run("COMMIT");
    return category;
}

QPointF placeOf(const QVariantMap &item)
{
    return {item.value(QStringLiteral("x")).toDouble(), item.value(QStringLiteral("y")).toDouble()};
}

/// Drags a table in circles over its neighbours, 16 pixels a frame.
QJsonObject dragTable(QQmlEngine &engine, const CanvasItemModel &plan, int frames)
{
    BenchPage page(engine, QStringLiteral("admin/management/AdminFloorPlanManagement.qml"));
    const QJsonObject opened = page.open();
    const QVariantMap before = plan.get(draggedRow);
    const QQuickItem *table = page.floorItem(before.value(QStringLiteral("label")).toString());
    const QPointF start = table->mapToScene(QPointF(table->width() / 2, table->height() / 2));
    const auto at = [&start](int frame) {
        constexpr double radius = 300.0;
        const double angle = frame * 16.0 / radius;
        return start + QPointF(qSin(angle), 1.0 - qCos(angle)) * radius;
    };

    page.mouse(QEvent::MouseButtonPress, start);
    const FrameTimes times = measureFrames(page.window(), frames, [&page, &at](int frame) {
        page.mouse(QEvent::MouseMove, at(frame + 1));
    });
    page.mouse(QEvent::MouseButtonRelease, at(frames));

    const QVariantMap after = plan.get(draggedRow);
    const QPointF missed = placeOf(after) - placeOf(before) - (at(frames) - start);
    // The first pixels only tell a drag from a click.
    if (plan.rowCount() != planItems ||
        missed.manhattanLength() > 2.0 * QGuiApplication::styleHints()->startDragDistance()) {
        qFatal("the table did not follow the mouse");
    }
    return {{QStringLiteral("open"), opened}, {QStringLiteral("dragged"), times.toJson()}};
}

/// Scrolls the list on from its start, so many pixels a frame.
QJsonObject scroll(BenchPage &page, QQuickItem &list, int frames, double pixels)
{
    return measureFrames(
               page.window(), frames,
               [&list, pixels](int frame) { list.setProperty("contentY", (frame + 1) * pixels); })
        .toJson();
}

/// Once by a row a frame, as with the wheel; once through all of it, as with the scroll bar.
QJsonObject scrollBothWays(BenchPage &page, qsizetype rows, int frames)
{
    const QJsonObject opened = page.open();
    QQuickItem *list = page.listOf(rows);
    const QJsonObject byWheel = scroll(page, *list, frames, 44.0);
    const double way = list->property("contentHeight").toDouble() - list->height();
    return {{QStringLiteral("open"), opened},
            {QStringLiteral("by_wheel"), byWheel},
            {QStringLiteral("by_bar"), scroll(page, *list, frames, way / frames)}};
}

QJsonObject scrollMenu(QQmlEngine &engine, MenuService &menu, int category, int frames)
{
    menu.setCurrentCategoryId(category);
    BenchPage page(engine, QStringLiteral("admin/management/AdminMenuManagement.qml"));
    return scrollBothWays(page, dishes, frames);
}

QJsonObject scrollSessions(QQmlEngine &engine, int sessions, int frames)
{
    BenchPage page(engine, QStringLiteral("admin/AdminTaxReports.qml"));
    const QJsonObject opened = page.open();
    const Stopwatch report;
    page.root()->setProperty("fromDate", QDateTime::currentDateTime().addYears(-1));
    page.root()->setProperty("toDate", QDateTime::currentDateTime().addDays(1));
    QMetaObject::invokeMethod(page.root(), "loadReport");
    static_cast<void>(page.open());
    const QJsonObject reported = report.toJson();
    QJsonObject figures = scrollBothWays(page, sessions, frames);
    figures.insert(QStringLiteral("open"), opened);
    figures.insert(QStringLiteral("report"), reported);
    return figures;
}

QJsonObject scrollMembers(QQmlEngine &engine, int frames)
{
    BenchPage page(engine, QStringLiteral("admin/management/AdminMembersManagement.qml"));
    return scrollBothWays(page, HistoryShape::members, frames);
}

/// The program's objects and screens on that file.
QJsonObject measure(const QString &path, int category, int sessions, int frames)
{
    SystemTheme systemTheme;
    Theme theme(&systemTheme);
    BenchStore store(path);
    store.services.publish(systemTheme, theme);
    QQmlEngine engine;
    engine.addImportPath(QStringLiteral(":/qt/qml"));
    return {
        {QStringLiteral("table on a plan"),
         dragTable(engine, *store.services.floorPlan.canvasModel(), frames)},
        {QStringLiteral("menu items"), scrollMenu(engine, store.services.menu, category, frames)},
        {QStringLiteral("tax sessions"), scrollSessions(engine, sessions, frames)},
        {QStringLiteral("members"), scrollMembers(engine, frames)},
    };
}
} // namespace

/// How smoothly a table is dragged and long lists are scrolled, drawn by the processor and without
/// waiting for a display.
int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(variable, home.path().toUtf8());
    }
    // Otherwise Qt leaves a pause before each frame.
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QQuickStyle::setStyle(QStringLiteral("Fusion"));
    const QGuiApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false"));
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption frames(QStringLiteral("frames"), QStringLiteral("Frames of each."),
                                    QStringLiteral("number"), QStringLiteral("600"));
    const QCommandLineOption sessions(QStringLiteral("sessions"),
                                      QStringLiteral("Paid sessions in the tax report."),
                                      QStringLiteral("number"), QStringLiteral("20000"));
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("Where the JSON goes."),
                                 QStringLiteral("file"));
    parser.addOptions({frames, sessions, out});
    parser.process(application);

    const int sessionCount = parser.value(sessions).toInt();
    const QString histories = QCoreApplication::applicationDirPath() + QLatin1String("/histories");
    const QString path = home.filePath(QStringLiteral("store.db"));
    const HistoryGenerator history(sessionCount, QDateTime::currentDateTimeUtc().date());
    if (!QFile::copy(history.cachedIn(histories), path)) {
        qFatal("cannot make the store");
    }
    const int category = prepare(path);
    const QJsonObject figures = measure(path, category, sessionCount, parser.value(frames).toInt());
    return tellFigures(figures, parser.value(out)) ? 0 : 1;
}
