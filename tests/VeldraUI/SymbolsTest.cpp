// SPDX-FileCopyrightText: 2026 The Torvi developers
// SPDX-License-Identifier: MIT

#include "VeldraUI/Style/Symbols.h"

#include <QQmlEngine>

#include <gtest/gtest.h>

#include <memory>

namespace torvi {

using namespace Qt::StringLiterals;

namespace {

class SymbolsTest : public testing::Test
{
protected:
    QQmlEngine m_engine;
    std::unique_ptr<Symbols> m_symbols{ Symbols::create(&m_engine, &m_engine) };
};

} // namespace

TEST_F(SymbolsTest, GivesItsEngineTheProvider)
{
    EXPECT_NE(m_engine.imageProvider(u"symbols"_s), nullptr);
}

TEST_F(SymbolsTest, NamesSymbolAndColourInTheAddress)
{
    EXPECT_EQ(m_symbols->source(u"folder.fill"_s, QColor(0x35, 0x74, 0xe3)),
              QUrl(u"image://symbols/folder.fill/ff3574e3"_s));
}

TEST_F(SymbolsTest, KeepsTheColoursOpacity)
{
    EXPECT_EQ(m_symbols->source(u"key"_s, QColor(255, 255, 255, 128)),
              QUrl(u"image://symbols/key/80ffffff"_s));
}

TEST_F(SymbolsTest, HasNoAddressForNoName)
{
    EXPECT_TRUE(m_symbols->source({}, Qt::black).isEmpty());
}

} // namespace torvi
