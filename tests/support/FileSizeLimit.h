// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QString>

#include <memory>

/// No file of this process grows past the size while the object lives: a disk that fills up. One at
/// a time.
class FileSizeLimit final
{
public:
    explicit FileSizeLimit(qint64 bytes);
    ~FileSizeLimit();
    Q_DISABLE_COPY_MOVE(FileSizeLimit)

    /// What the system says of a write that did not fit.
    [[nodiscard]] static QString reason();

private:
    struct Previous;

    std::unique_ptr<Previous> m_previous;
};
