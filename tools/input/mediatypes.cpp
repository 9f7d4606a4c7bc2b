// SPDX-FileCopyrightText: 2026 The smilparser authors
// SPDX-License-Identifier: MIT

#include "mediatypes.h"

#include <utility>

// Of the public list of assigned numbers, what messages are made of.
static const std::pair<quint64, const char *> mediaTypes[] = {
    {0x02, "text/html"                                },
    {0x03, "text/plain"                               },
    {0x07, "text/x-vcard"                             },
    {0x0B, "multipart/*"                              },
    {0x0C, "multipart/mixed"                          },
    {0x0F, "multipart/alternative"                    },
    {0x1D, "image/gif"                                },
    {0x1E, "image/jpeg"                               },
    {0x20, "image/png"                                },
    {0x21, "image/vnd.wap.wbmp"                       },
    {0x22, "application/vnd.wap.multipart.*"          },
    {0x23, "application/vnd.wap.multipart.mixed"      },
    {0x26, "application/vnd.wap.multipart.alternative"},
    {0x33, "application/vnd.wap.multipart.related"    },
};

QString mediaType(quint64 number)
{
    for (const auto &[assigned, name] : mediaTypes) {
        if (assigned == number) {
            return QLatin1String(name);
        }
    }
    return QStringLiteral("0x%1").arg(number, 2, 16, QLatin1Char('0'));
}
