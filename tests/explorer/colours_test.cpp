#include <explorer/views/Theme.h>
#include <explorer/window/Appearance.h>
#include <explorer/window/Start.h>

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace {

using explorer::Appearance;

/// The relative luminance that WCAG 2 defines, from 0 to 1.
double Luminance(const QColor& colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& first, const QColor& second)
{
    const auto [darker, lighter] = std::minmax({Luminance(first), Luminance(second)});
    return (lighter + 0.05) / (darker + 0.05);
}

class ColoursTest : public testing::TestWithParam<Appearance> {
protected:
    void SetUp() override
    {
        explorer::ApplyAppearance(GetParam());
        m_palette = QApplication::palette();
    }

    QPalette m_palette;
};

TEST_P(ColoursTest, TextsHaveEnoughContrast)
{
    static constexpr double kReadable = 4.5;  // the minimum of WCAG 2 for texts of this size
    const auto expectReadable = [this](const QColor& text, QPalette::ColorRole background) {
        EXPECT_GE(Contrast(text, m_palette.color(background)), kReadable)
            << text.name().toStdString() << " on " << static_cast<int>(background);
    };
    for (const auto background : {QPalette::Window, QPalette::Base, QPalette::AlternateBase}) {
        for (const auto text : {QPalette::WindowText, QPalette::Text, QPalette::PlaceholderText, QPalette::Link}) {
            expectReadable(m_palette.color(text), background);
        }
        for (const auto tint : {explorer::theme::Error, explorer::theme::Hint, explorer::theme::JsonKey,
                                explorer::theme::JsonText, explorer::theme::JsonNumber, explorer::theme::JsonWord}) {
            expectReadable(tint(m_palette), background);
        }
    }
    expectReadable(m_palette.color(QPalette::ButtonText), QPalette::Button);
    expectReadable(m_palette.color(QPalette::HighlightedText), QPalette::Highlight);
    expectReadable(m_palette.color(QPalette::ToolTipText), QPalette::ToolTipBase);
}

INSTANTIATE_TEST_SUITE_P(Appearances, ColoursTest, testing::Values(Appearance::Light, Appearance::Dark),
                         [](const auto& row) { return row.param == Appearance::Light ? "Light" : "Dark"; });

}  // namespace
