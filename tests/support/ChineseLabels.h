// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QTranslator>

/// The Chinese labels of printed documents, told once more beside the catalogue. Installed for as
/// long as the object lives; knows the context QObject only.
class ChineseLabels final : public QTranslator
{
    Q_OBJECT

public:
    ChineseLabels();
    ~ChineseLabels() override;

    [[nodiscard]] QString translate(const char *context, const char *sourceText,
                                    const char *disambiguation, int n) const override;
    [[nodiscard]] bool isEmpty() const override;
};
