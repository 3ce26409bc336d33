// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
.pragma library

// Days of the calendar as dates. Each stands at its noon: where summer time starts at midnight that
// midnight does not exist, and the date would be the evening before. A second later, since a date on
// the UTC's midnight is taken for the day that begins there.

// The month counts from 0. Days and months beyond the bounds run over into their neighbours.
function of(year, month, day) {
    const date = new Date(2000, 0, 1, 12, 0, 1)
    date.setFullYear(year, month, day)
    return date
}

// The day that is so many days after that of the date.
function after(date, days) {
    return of(date.getFullYear(), date.getMonth(), date.getDate() + days)
}

// Counts days, so that two dates can be compared without their times.
function number(date) {
    return Date.UTC(date.getFullYear(), date.getMonth(), date.getDate()) / 86400000
}

// The day of an ISO text, its first one where day or month are left out; null where there is none,
// such as a 30th of February.
function parse(text) {
    const parts = /^(\d{4})(?:[-\/](\d{2})(?:[-\/](\d{2}))?)?$/.exec(text)
    if (!parts)
        return null
    const month = Number(parts[2] ?? 1) - 1
    const day = Number(parts[3] ?? 1)
    const date = of(Number(parts[1]), month, day)
    return date.getMonth() === month && date.getDate() === day ? date : null
}
