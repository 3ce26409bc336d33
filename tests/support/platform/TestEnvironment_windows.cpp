// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestEnvironment.h"

#include <QCoreApplication>
#include <QDir>
#include <QUuid>

#include <qt_windows.h>

#include <ctime>
#include <shlobj.h>
#include <string>

namespace {
constexpr auto keyVariable = "ZELVAN_TEST_REGISTRY";

/// The place of the user's registry that stands for all of it in this process.
std::wstring keyName()
{
    return QString::fromLatin1(qgetenv(keyVariable)).toStdWString();
}

void must(LSTATUS status, const char *what)
{
    if (status != ERROR_SUCCESS) {
        qFatal("the registry refuses: %s (%ld)", what, long(status));
    }
}

/// Where the system's folders of a user lie, it asks the registry.
void nameFolder(HKEY root, const wchar_t *folder, const char *variable)
{
    const std::wstring path =
        QDir::toNativeSeparators(QString::fromLocal8Bit(qgetenv(variable))).toStdWString();
    must(RegSetKeyValueW(
             root, L"Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\User Shell Folders",
             folder, REG_SZ, path.c_str(), DWORD((path.size() + 1) * sizeof(wchar_t))),
         "a folder");
}
} // namespace

void TestEnvironment::enter()
{
    HKEY key = nullptr;
    must(RegCreateKeyExW(HKEY_CURRENT_USER, keyName().c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                         nullptr, &key, nullptr),
         "a key");
    nameFolder(key, L"AppData", "XDG_DATA_HOME");
    nameFolder(key, L"Local AppData", "XDG_DATA_HOME");
    nameFolder(key, L"Personal", "HOME");
    must(RegOverridePredefKey(HKEY_CURRENT_USER, key), "its place");
    RegCloseKey(key);
}

void TestEnvironment::setTimeZone(const QByteArray &zone)
{
    qputenv("TZ", zone);
    _tzset();
}

int TestEnvironment::codePage()
{
    return static_cast<int>(GetACP());
}

void TestEnvironment::makeSettings()
{
    const QString name = QStringLiteral("Software\\Zelvan tests\\%1")
                             .arg(QUuid::createUuid().toString(QUuid::WithoutBraces));
    qputenv(keyVariable, name.toLatin1());
    // Where Qt draws without a window, it looks into one folder only.
    if (!qEnvironmentVariableIsSet("QT_QPA_FONTDIR")) {
        qputenv("QT_QPA_FONTDIR", qgetenv("WINDIR") + "\\Fonts");
    }
    enter();
}

void TestEnvironment::removeSettings()
{
    must(RegOverridePredefKey(HKEY_CURRENT_USER, nullptr), "the user's own place");
    RegDeleteTreeW(HKEY_CURRENT_USER, keyName().c_str());
    RegDeleteKeyW(HKEY_CURRENT_USER, keyName().c_str());
}
