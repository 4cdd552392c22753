// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "Torvi/Linux/IconPixmap.h"

#include <gtest/gtest.h>

namespace torvi {

TEST(IconPixmapTest, SendsUnmultipliedARGBInNetworkByteOrder)
{
    QImage image(2, 1, QImage::Format_ARGB32_Premultiplied);
    image.setPixelColor(0, 0, QColor(0x20, 0x40, 0x60, 0xff));
    image.setPixelColor(1, 0, QColor(0xff, 0x00, 0x00, 0x80));

    const IconPixmap pixmap = IconPixmap::fromImage(image);

    EXPECT_EQ(pixmap.width, 2);
    EXPECT_EQ(pixmap.height, 1);
    EXPECT_EQ(pixmap.bytes.toHex(), "ff20406080ff0000");
}

} // namespace torvi
