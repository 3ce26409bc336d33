// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/NotHere.h"

namespace {
constexpr auto modes = "Windows has no modes of files; what a profile holds is its user's";
constexpr auto clock = "no program moves a Windows program's clock and zone";
constexpr auto language = "a Windows program's language is no variable";
constexpr auto settingsFile = "the settings are no file";

struct Left
{
    const char *className;
    const char *function;
    const char *reason;
};

// Not built there at all: tst_cupsspooler, tst_patientthread and tst_platformspooler (there is no
// CUPS; scripts/check-winspool tries the Windows spooler), tst_durability and tst_usersbesidework
// (they stand between the program and the calls of this system's own library).
constexpr Left all[] = {
    {"tst_analyticsrepository", "localDaysAreWalkedOverSumsOfUtcDays", clock},
    {"tst_analyticsrepository", "theLastSevenDaysAreFilledUpWithZeroes", clock},
    {"tst_databasemove", "aFolderThatStaysDoesNotFailTheMove", modes},
    {"tst_databasereplace", "leftoversOfTheReplacementGo",
     "the index of the write-ahead log is mapped there, and needs no write that could fail"},
    {"tst_databaseseeder", "theRegionIsThatOfTheSystem", language},
    {"tst_databaseseeder", "theYearIsTheLocalYearOfTheSetup", clock},
    {"tst_durable", "whatIsMadeIsForItsUserAlone", modes},
    {"tst_foldertidying", "aFolderThatCannotBeReadCountsAsNotEmpty", modes},
    {"tst_logging", "filesOlderThanThirtyDaysArePurgedAtStart", clock},
    {"tst_logging", "linesAreRepeatedOnTheErrorStream", clock},
    {"tst_logging", "linesHoldTimeLevelCategoryAndText", clock},
    {"tst_logging", "oneDayHasOneFileThatGrows", clock},
    {"tst_logging", "theFirstMessageAfterMidnightOpensANewFile", clock},
    {"tst_logging", "twoThreadsNeverMixTheirLines", clock},
    {"tst_logging", "withoutAFileTheErrorStreamStillTells", clock},
    {"tst_membermodels", "aStoredTimeIsReadAsUtcAndShownLocally", clock},
    {"tst_openorders", "aRowNamesItsTable", clock},
    {"tst_openorders", "eastOfGreenwichEveryMorningNumberIsDrawnAfresh", clock},
    {"tst_openorders", "eastOfGreenwichTheEarlyMorningIsNotListed", clock},
    {"tst_openorders", "numbersFollowEachOtherWhereBothClocksShowTheSameDay", clock},
    {"tst_openorders", "ordersAreListedWhereBothClocksShowTheSameDay", clock},
    {"tst_openorders", "ordersOfPaidSessionsAreNotOpen", clock},
    {"tst_openorders", "rowsAreNewestFirstWithTheirTable", clock},
    {"tst_openorders", "theNextLocalDayStartsAfresh", clock},
    {"tst_openorders", "westOfGreenwichTheEveningsNumberRepeats", clock},
    {"tst_openorders", "westOfGreenwichTheLateEveningIsNotListed", clock},
    {"tst_orderrepository", "utcStampsAreMeasuredAgainstLocalDays", clock},
    {"tst_printreceipt", "theSaleIsInLocalTime", clock},
    {"tst_privatefiles", "*", modes},
    {"tst_settingsstore", "aLinkedStoreStaysALink", settingsFile},
    {"tst_settingsstore", "theStoreIsForItsUserAlone", settingsFile},
    {"tst_settingsstore", "whereTheFolderCannotBeMadeNothingIsStored", settingsFile},
    {"tst_taxreportservice", "aPresetGoesByTheLocalDay", clock},
    {"tst_translation", "theStoresLanguageCountsOnAnySystem", language},
    {"tst_workingset", "longHistoriesAnswerAlike", clock},
};
} // namespace

QMap<QString, QString> NotHere::reasons(const QString &className)
{
    QMap<QString, QString> found;
    for (const Left &left : all) {
        if (className == QLatin1String(left.className)) {
            found.insert(QString::fromLatin1(left.function), QString::fromLatin1(left.reason));
        }
    }
    return found;
}
