// SPDX-License-Identifier: Apache-2.0
#ifndef CHECKSUM_H
#define CHECKSUM_H

#include <QByteArray>

/// The sum that PNG and gzip check their bytes by: CRC-32 of ISO 3309.
inline quint32 crc32(const QByteArray &bytes)
{
    quint32 crc = ~0U;
    for (const char byte : bytes) {
        crc ^= uchar(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (crc & 1 ? 0xEDB88320U : 0U);
    }
    return ~crc;
}

#endif // CHECKSUM_H
