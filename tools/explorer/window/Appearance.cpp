#include "Appearance.h"

#include <translations/Application.h>

#include <ErrorLexicon/ErrorLexicon.h>

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QSettings>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>
#include <QTranslator>

#include <memory>
#include <utility>
#include <vector>

namespace explorer {
namespace {

constexpr const char* kAppearanceKey = "appearance";
constexpr const char* kLanguageKey = "language";
const char* const kLanguages[] = {"en", "de", "zh"};

struct Colours {
    QRgb window;
    QRgb base;
    QRgb alternate;
    QRgb button;
    QRgb text;
    QRgb faintText;
    QRgb accent;
    QRgb link;
    QRgb light;
    QRgb midlight;
    QRgb mid;
    QRgb dark;
    QRgb shadow;
    QRgb toolTip;
};

constexpr Colours kLight{0xfff3f5f8, 0xffffffff, 0xfff7f9fb, 0xfffafbfc, 0xff1d2430, 0xff646e7c, 0xff2f6fd6,
                         0xff1f5fc4, 0xffffffff, 0xffe9edf2, 0xffc9d0da, 0xffaab3c0, 0xff7a8494, 0xffffffff};
constexpr Colours kDark{0xff22272e, 0xff1a1e24, 0xff1f242b, 0xff2d333c, 0xffdde3ea, 0xff929cab, 0xff3270d8,
                        0xff74a8f5, 0xff3a424d, 0xff333a44, 0xff3d4551, 0xff14171c, 0xff0c0e11, 0xff2d333c};

QPalette Painted(const Colours& colours)
{
    constexpr QRgb kWhite = 0xffffffff;
    const std::pair<QPalette::ColorRole, QRgb> all[] = {
        {QPalette::Window, colours.window},       {QPalette::WindowText, colours.text},
        {QPalette::Base, colours.base},           {QPalette::AlternateBase, colours.alternate},
        {QPalette::Text, colours.text},           {QPalette::PlaceholderText, colours.faintText},
        {QPalette::Button, colours.button},       {QPalette::ButtonText, colours.text},
        {QPalette::BrightText, kWhite},           {QPalette::Highlight, colours.accent},
        {QPalette::HighlightedText, kWhite},      {QPalette::Link, colours.link},
        {QPalette::LinkVisited, colours.link},    {QPalette::Light, colours.light},
        {QPalette::Midlight, colours.midlight},   {QPalette::Mid, colours.mid},
        {QPalette::Dark, colours.dark},           {QPalette::Shadow, colours.shadow},
        {QPalette::ToolTipBase, colours.toolTip}, {QPalette::ToolTipText, colours.text}};
    const std::pair<QPalette::ColorRole, QRgb> disabled[] = {{QPalette::WindowText, colours.faintText},
                                                             {QPalette::Text, colours.faintText},
                                                             {QPalette::ButtonText, colours.faintText},
                                                             {QPalette::HighlightedText, colours.faintText},
                                                             {QPalette::Highlight, colours.mid}};
    QPalette palette;
    for (const auto& [role, colour] : all) {
        palette.setColor(role, QColor::fromRgb(colour));
    }
    for (const auto& [role, colour] : disabled) {
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(colour));
    }
    return palette;
}

/// Adds to the style: thin lines, underlined tabs of the panes, one prominent button.
constexpr const char* kStyleSheet = R"(
    QSplitter::handle { background: palette(mid); }
    QToolBar { border: none; border-bottom: 1px solid palette(mid); padding: 0; spacing: 0; }
    QStatusBar { border-top: 1px solid palette(mid); }
    QTabWidget#results::pane, QTabWidget#feeds::pane { border: none; border-top: 1px solid palette(mid); }
    QTabBar#underlined { qproperty-drawBase: 0; }
    QTabBar#underlined::tab { background: transparent; color: palette(placeholder-text); border: none; border-bottom: 2px solid transparent;
                              padding: 6px 12px 5px 12px; }
    QTabBar#underlined::tab:selected { color: palette(window-text); border-bottom: 2px solid palette(highlight); }
    QTabBar#underlined::tab:hover:!selected { border-bottom: 2px solid palette(mid); }
    QTabBar#underlined::tab:focus { color: palette(link); }
    QPushButton#run { background: palette(highlight); color: palette(highlighted-text); font-weight: bold;
                      border: 1px solid palette(highlight); border-radius: 3px; padding: 5px 22px; }
    QPushButton#run:hover { background: palette(link); }
    QPushButton#run:focus { border: 1px solid palette(window-text); }
    QPushButton#run:disabled { background: palette(midlight); color: palette(placeholder-text);
                               border-color: palette(midlight); }
)";

/// Installed translators are deleted when others replace them.
std::vector<std::unique_ptr<QTranslator>>& Translators()
{
    static std::vector<std::unique_ptr<QTranslator>> translators;
    return translators;
}

void Install(const QString& file, const QString& folder)
{
    auto translator = std::make_unique<QTranslator>();
    if (translator->load(file, folder)) {
        QCoreApplication::installTranslator(translator.get());
        Translators().push_back(std::move(translator));
    }
}

QString ToolkitTranslations()
{
#if QT_VERSION_MAJOR == 5
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}

}  // namespace

Appearance StoredAppearance(const QSettings& settings)
{
    const QString name = settings.value(QLatin1String(kAppearanceKey)).toString();
    if (name == QLatin1String("light")) {
        return Appearance::Light;
    }
    return name == QLatin1String("dark") ? Appearance::Dark : Appearance::System;
}

void StoreAppearance(QSettings& settings, Appearance appearance)
{
    const char* const names[] = {"system", "light", "dark"};
    settings.setValue(QLatin1String(kAppearanceKey), QLatin1String(names[static_cast<int>(appearance)]));
}

void ApplyAppearance(Appearance appearance)
{
    // The palette of a desktop may be dark; without a desktop palette the light one is used.
    static const bool systemIsDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    const bool dark = appearance == Appearance::Dark || (appearance == Appearance::System && systemIsDark);
    // A style sheet keeps the colours of the palette at the time it was set.
    qApp->setStyleSheet(QString());
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette palette = Painted(dark ? kDark : kLight);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    qApp->setStyleSheet(QLatin1String(kStyleSheet));
}

QString StoredLanguage(const QSettings& settings)
{
    const QString stored = settings.value(QLatin1String(kLanguageKey), QLocale::system().name()).toString();
    for (const char* language : kLanguages) {
        if (stored.startsWith(QLatin1String(language))) {
            return QLatin1String(language);
        }
    }
    return QLatin1String(kLanguages[0]);
}

void StoreLanguage(QSettings& settings, const QString& language)
{
    settings.setValue(QLatin1String(kLanguageKey), language);
}

void ApplyLanguage(const QString& language)
{
    Translators().clear();
    const QString toolkit = language == QLatin1String("zh") ? QStringLiteral("zh_CN") : language;
    Install(QStringLiteral("qtbase_") + toolkit, ToolkitTranslations());
    // The fallback is English, whose files contain only the plural forms.
    for (const QString& spoken : {QStringLiteral("en"), language}) {
        for (const char* name : {"apimodule", "orngui", "tools", "explorer"}) {
            Install(QLatin1String(name) + QLatin1Char('_') + spoken, translation::Folder());
        }
    }
    QLocale::setDefault(QLocale(toolkit));
    ErrorLexicon::SetLanguage(language.toStdString());
}

}  // namespace explorer
