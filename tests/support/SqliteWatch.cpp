// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/SqliteWatch.h"

#include <sqlite3.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>

#include <dlfcn.h>

namespace {
// Relaxed throughout: the watch must not put in order what the program does not.
constexpr auto relaxed = std::memory_order_relaxed;

std::atomic<int> nextThread = 1;
thread_local const int thisThread = nextThread.fetch_add(1, relaxed);

std::atomic<int> firstThread = 0;
std::atomic<long> firstCalls = 0;
std::atomic<long> otherCalls = 0;
std::atomic<long> collided = 0;
std::atomic<int> threadInside = 0;
std::atomic<int> depth = 0;
/// Statements that were begun and neither ended nor reset, and whose they are.
std::atomic<int> underWay = 0;
std::atomic<int> threadUnderWay = 0;

/// Written by every call and guarded by nothing: a race on it is one inside SQLite.
[[maybe_unused]] unsigned long connectionState = 0;

class Call final
{
public:
    Call()
    {
        int nobody = 0;
        firstThread.compare_exchange_strong(nobody, thisThread, relaxed);
        (firstThread.load(relaxed) == thisThread ? firstCalls : otherCalls).fetch_add(1, relaxed);
        const bool alreadyInside = depth.fetch_add(1, relaxed) > 0;
        const int other = threadInside.exchange(thisThread, relaxed);
        if ((alreadyInside && other != thisThread) ||
            (underWay.load(relaxed) > 0 && threadUnderWay.load(relaxed) != thisThread)) {
            collided.fetch_add(1, relaxed);
        }
#if defined(__SANITIZE_THREAD__)
        ++connectionState;
#endif
    }
    ~Call()
    {
        depth.fetch_sub(1, relaxed);
    }
    Call(const Call &) = delete;
    Call &operator=(const Call &) = delete;
};

template<typename Function>
Function *real(const char *name)
{
    // The one that the driver is linked with.
    static void *const library = dlopen("libsqlite3.so.0", RTLD_LAZY);
    void *const found = library != nullptr ? dlsym(library, name) : nullptr;
    if (found == nullptr) {
        std::fprintf(stderr, "SqliteWatch: no %s\n", name);
        std::abort();
    }
    return reinterpret_cast<Function *>(found);
}

/// Runs a call that may begin or end a statement.
template<typename Work>
int followed(sqlite3_stmt *statement, Work work)
{
    static auto *const isBusy = real<decltype(sqlite3_stmt_busy)>("sqlite3_stmt_busy");
    const int before = isBusy(statement);
    const int result = work();
    const int change = isBusy(statement) - before;
    if (change > 0) {
        threadUnderWay.store(thisThread, relaxed);
    }
    underWay.fetch_add(change, relaxed);
    return result;
}
} // namespace

long SqliteWatch::callsOfFirstThread()
{
    return firstCalls.load(relaxed);
}

long SqliteWatch::callsOfOtherThreads()
{
    return otherCalls.load(relaxed);
}

long SqliteWatch::collisions()
{
    return collided.load(relaxed);
}

#define ZELVAN_REAL(name) static auto *const next = real<decltype(name)>(#name)
#define ZELVAN_WATCH(result, name, parameters, arguments)                                          \
    result name parameters                                                                         \
    {                                                                                              \
        ZELVAN_REAL(name);                                                                         \
        const Call call;                                                                           \
        return next arguments;                                                                     \
    }

extern "C" {
int sqlite3_step(sqlite3_stmt *statement)
{
    ZELVAN_REAL(sqlite3_step);
    const Call call;
    return followed(statement, [statement] { return next(statement); });
}

int sqlite3_reset(sqlite3_stmt *statement)
{
    ZELVAN_REAL(sqlite3_reset);
    const Call call;
    return followed(statement, [statement] { return next(statement); });
}

int sqlite3_finalize(sqlite3_stmt *statement)
{
    static_cast<void>(sqlite3_reset(statement));
    ZELVAN_REAL(sqlite3_finalize);
    const Call call;
    return next(statement);
}

ZELVAN_WATCH(int, sqlite3_prepare16_v2,
             (sqlite3 * db, const void *sql, int size, sqlite3_stmt **statement, const void **tail),
             (db, sql, size, statement, tail))
ZELVAN_WATCH(int, sqlite3_bind_blob,
             (sqlite3_stmt * s, int index, const void *value, int size, void (*release)(void *)),
             (s, index, value, size, release))
ZELVAN_WATCH(int, sqlite3_bind_double, (sqlite3_stmt * s, int index, double value),
             (s, index, value))
ZELVAN_WATCH(int, sqlite3_bind_int, (sqlite3_stmt * s, int index, int value), (s, index, value))
ZELVAN_WATCH(int, sqlite3_bind_int64, (sqlite3_stmt * s, int index, sqlite3_int64 value),
             (s, index, value))
ZELVAN_WATCH(int, sqlite3_bind_null, (sqlite3_stmt * s, int index), (s, index))
ZELVAN_WATCH(int, sqlite3_bind_text16,
             (sqlite3_stmt * s, int index, const void *value, int size, void (*release)(void *)),
             (s, index, value, size, release))
ZELVAN_WATCH(int, sqlite3_bind_parameter_count, (sqlite3_stmt * s), (s))
ZELVAN_WATCH(int, sqlite3_changes, (sqlite3 * db), (db))
ZELVAN_WATCH(sqlite3_int64, sqlite3_last_insert_rowid, (sqlite3 * db), (db))
ZELVAN_WATCH(const void *, sqlite3_errmsg16, (sqlite3 * db), (db))
ZELVAN_WATCH(int, sqlite3_column_count, (sqlite3_stmt * s), (s))
ZELVAN_WATCH(int, sqlite3_column_type, (sqlite3_stmt * s, int column), (s, column))
ZELVAN_WATCH(int, sqlite3_column_int, (sqlite3_stmt * s, int column), (s, column))
ZELVAN_WATCH(sqlite3_int64, sqlite3_column_int64, (sqlite3_stmt * s, int column), (s, column))
ZELVAN_WATCH(double, sqlite3_column_double, (sqlite3_stmt * s, int column), (s, column))
ZELVAN_WATCH(const void *, sqlite3_column_text16, (sqlite3_stmt * s, int column), (s, column))
ZELVAN_WATCH(int, sqlite3_column_bytes16, (sqlite3_stmt * s, int column), (s, column))
}
