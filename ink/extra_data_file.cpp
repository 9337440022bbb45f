// SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Making a counter file from the extra data of a PPD.

#include "ink/extra_data.h"

#include "platform/files.h"
#include "plugin/log.h"
#include "ppd/ppd_file.h"

#include <cstdio>

namespace tessarin {

void processEXData(const char *ppdPath, const char *inkFilePath)
{
    const PPDHandle ppd = openPPD(ppdPath);
    std::size_t length = 0;
    const ExtraData block(ppdxReadData(ppd.get(), kInkExtraDataName, &length));
    _VERBOSE("###EXDATA###\n");
    if (block) {
        _VERBOSE("%S", block.get());
        if (!openForReading(inkFilePath)) {
            _VERBOSE("Writing InkDataFile:");
            _VERBOSE("%S", inkFilePath);
            _VERBOSE("\n");
            // "x": the file must not exist, so that one that cannot be read is not overwritten either.
            if (const FileHandle file{std::fopen(inkFilePath, "wx")}) {
                if (std::fwrite(block.get(), 1, length, file.get()) != length) {
                    _VERBOSE("ERROR: cannot write %S\n", inkFilePath);
                }
            }
        }
    }
    _VERBOSE("###EXDATA-END###\n");
}

} // namespace tessarin
