// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "PictureComparison.h"

#include <algorithm>
#include <cstdlib>

namespace torvi {

namespace {

constexpr int kVisible = 40; // of 255, in one colour

bool isAlike(QRgb one, QRgb other)
{
    return std::abs(qRed(one) - qRed(other)) < kVisible
        && std::abs(qGreen(one) - qGreen(other)) < kVisible
        && std::abs(qBlue(one) - qBlue(other)) < kVisible;
}

bool isAround(QRgb color, const QImage &picture, int x, int y)
{
    for (int row = std::max(0, y - 1); row <= std::min(picture.height() - 1, y + 1); ++row) {
        for (int column = std::max(0, x - 1); column <= std::min(picture.width() - 1, x + 1);
             ++column) {
            if (isAlike(color, picture.pixel(column, row))) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

double shareThatDiffers(const QImage &picture, const QImage &reference)
{
    if (picture.size() != reference.size()) {
        return 1;
    }
    int different = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb shown = picture.pixel(x, y);
            const QRgb wanted = reference.pixel(x, y);
            // Both ways: what is gone counts as well as what is new.
            if (!isAlike(shown, wanted)
                && !(isAround(shown, reference, x, y) && isAround(wanted, picture, x, y))) {
                ++different;
            }
        }
    }
    return static_cast<double>(different) / (picture.width() * picture.height());
}

} // namespace torvi
