// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "fuzz/FuzzTarget.h"

#include <QDirIterator>
#include <QFile>

#include <cstdio>

/// "fuzz_x FOLDER": runs the target on every input of the folder, without a fuzzer. What once
/// crashed lies there and must not again.
int main(int argc, char **argv)
{
    int inputs = 0;
    QDirIterator it(QString::fromLocal8Bit(argc > 1 ? argv[1] : "."), QDir::Files);
    while (it.hasNext()) {
        QFile file(it.next());
        if (!file.open(QIODevice::ReadOnly)) {
            return 1;
        }
        const QByteArray input = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.constData()),
                               static_cast<std::size_t>(input.size()));
        ++inputs;
    }
    std::printf("%d inputs\n", inputs);
    return inputs > 0 ? 0 : 1;
}
