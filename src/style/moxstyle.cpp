#include "style/moxstyle.h"

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

struct NamedColour
{
    const char *role;
    const char *value;
};

// Every theme names every role below; the contrast test holds each text role
// against the backgrounds it is drawn on (at least 4.5 : 1). The health roles
// paint fixtures on the grey monitor, told apart by hue and, in dim red, by
// brightness too; "never fed" is the dimmest.
//
// The monitor is dark so that lit pixels read as they do on site; the dark
// theme keeps the rest of the window out of the way of that.
constexpr NamedColour kDark[] = {
    {"window", "#1e2227"},   {"base", "#15181c"},   {"text", "#e3e6ea"},    {"mutedText", "#9aa3ad"},
    {"button", "#2b3036"},   {"accent", "#f08220"}, {"border", "#3a4047"},  {"info", "#9fd4a3"},
    {"warning", "#f2c14e"},  {"error", "#ff6b6b"},  {"highlight", "#3d6ea8"}, {"success", "#6fcf73"},
    {"hint", "#b8c4d0"},     {"disabledText", "#6b737c"}, {"highlightedText", "#ffffff"},
    {"healthOk", "#3fbf5a"}, {"healthUnstable", "#f2c14e"}, {"healthConflict", "#c77dff"}, {"healthStale", "#ff4040"},
    {"healthNever", "#59626c"},
};
// Daylight and offices.
constexpr NamedColour kLight[] = {
    {"window", "#eef0f2"},   {"base", "#ffffff"},   {"text", "#1b1f24"},    {"mutedText", "#535c66"},
    {"button", "#e1e4e8"},   {"accent", "#a84f00"}, {"border", "#b8bfc7"},  {"info", "#256b29"},
    {"warning", "#855c00"},  {"error", "#b71c1c"},  {"highlight", "#3d6ea8"}, {"success", "#256b29"},
    {"hint", "#3b4650"},     {"disabledText", "#9aa1a8"}, {"highlightedText", "#ffffff"},
    {"healthOk", "#2e9e45"}, {"healthUnstable", "#e0a800"}, {"healthConflict", "#9b4dca"}, {"healthStale", "#e53935"},
    {"healthNever", "#7d868f"},
};
// For low vision and glaring screens: white and pure colours on black.
constexpr NamedColour kHighContrast[] = {
    {"window", "#000000"},   {"base", "#000000"},   {"text", "#ffffff"},    {"mutedText", "#e0e0e0"},
    {"button", "#1a1a1a"},   {"accent", "#ffd400"}, {"border", "#ffffff"},  {"info", "#7dff7d"},
    {"warning", "#ffd400"},  {"error", "#ff7070"},  {"highlight", "#1a5fff"}, {"success", "#7dff7d"},
    {"hint", "#ffffff"},     {"disabledText", "#a0a0a0"}, {"highlightedText", "#ffffff"},
    {"healthOk", "#00ff00"}, {"healthUnstable", "#ffff00"}, {"healthConflict", "#ff00ff"}, {"healthStale", "#ff0000"},
    {"healthNever", "#808080"},
};
// For dark venues: nothing but dim reds and ambers, so the screen neither
// lights the room nor spoils the crew's night vision during a show.
constexpr NamedColour kDimRed[] = {
    {"window", "#0d0505"},   {"base", "#080303"},   {"text", "#e06a55"},    {"mutedText", "#c85a46"},
    {"button", "#2a0d0a"},   {"accent", "#ff7043"}, {"border", "#4a1a14"},  {"info", "#d08050"},
    {"warning", "#e09040"},  {"error", "#ff5050"},  {"highlight", "#5a1a12"}, {"success", "#c09048"},
    {"hint", "#d87060"},     {"disabledText", "#7a3328"}, {"highlightedText", "#ffb0a0"},
    {"healthOk", "#9a5a28"}, {"healthUnstable", "#f0b050"}, {"healthConflict", "#ff7a8a"}, {"healthStale", "#ff1a1a"},
    {"healthNever", "#3a0e0a"},
};

struct Theme
{
    const char *id;
    const char *name; // untranslated display name
    const NamedColour *colours;
    size_t count;
};

constexpr Theme kThemes[] = {
    {"dark", QT_TRANSLATE_NOOP("MoxStyle", "Dark"), kDark, std::size(kDark)},
    {"light", QT_TRANSLATE_NOOP("MoxStyle", "Light"), kLight, std::size(kLight)},
    {"contrast", QT_TRANSLATE_NOOP("MoxStyle", "High contrast"), kHighContrast, std::size(kHighContrast)},
    {"dimred", QT_TRANSLATE_NOOP("MoxStyle", "Dim red"), kDimRed, std::size(kDimRed)},
};

const Theme *findTheme(const QString &id)
{
    for (const Theme &t : kThemes)
        if (id == QLatin1String(t.id))
            return &t;
    return nullptr;
}

const char *const kStyleSheet = R"(
QWidget { color: {text}; }
QWidget:disabled, QMenu::item:disabled { color: {disabledText}; }
QMainWindow, QDialog { background: {window}; }
QGroupBox { border: 1px solid {border}; border-radius: 4px; margin-top: 8px; padding-top: 6px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; color: {mutedText}; }
QLineEdit, QSpinBox, QDoubleSpinBox, QComboBox, QTreeWidget, QTableWidget, QPlainTextEdit {
    background: {base}; border: 1px solid {border}; border-radius: 3px; selection-background-color: {highlight}; }
QPushButton, QToolButton { background: {button}; border: 1px solid {border}; border-radius: 3px; padding: 4px 10px; }
QPushButton:hover, QToolButton:hover { border-color: {accent@70}; }
QPushButton:disabled, QToolButton:disabled { color: {mutedText}; }
QTabWidget::pane { border: 1px solid {border}; }
QTabBar::tab { background: {button}; padding: 5px 12px; border: 1px solid {border}; }
QTabBar::tab:selected { background: {window}; border-bottom-color: {accent}; }
QStatusBar { background: {base}; color: {mutedText}; }
StatusLabel[msgLevel="0"] { color: {info}; }
StatusLabel[msgLevel="1"] { color: {warning}; }
StatusLabel[msgLevel="2"] { color: {error}; }
QLabel[labelRole="hint"] { color: {hint}; }
QLabel[labelRole="muted"] { color: {mutedText}; }
QLabel[labelRole="accent"] { color: {accent}; }
QLabel[labelRole="success"] { color: {success}; }
QLabel[labelRole="warning"] { color: {warning}; }
QLabel[labelRole="error"] { color: {error}; }
)";

} // namespace

MoxStyle::MoxStyle(QObject *parent) : QObject(parent)
{
    applyTheme(defaultThemeId());
}

QString MoxStyle::defaultThemeId()
{
    return QStringLiteral("dark");
}

QStringList MoxStyle::themeIds() const
{
    QStringList ids;
    for (const Theme &t : kThemes)
        ids << QString::fromLatin1(t.id);
    return ids;
}

QString MoxStyle::themeDisplayName(const QString &id)
{
    const Theme *theme = findTheme(id);
    return theme ? tr(theme->name) : id;
}

void MoxStyle::applyTheme(const QString &id)
{
    const Theme *theme = findTheme(id);
    if (!theme)
        theme = findTheme(defaultThemeId());
    m_themeId = QString::fromLatin1(theme->id);
    m_palette.clear();
    for (size_t i = 0; i < theme->count; ++i)
        m_palette.insert(QString::fromLatin1(theme->colours[i].role), QColor(QString::fromLatin1(theme->colours[i].value)));
    emit themeChanged(m_themeId);
}

void MoxStyle::install(QApplication &app) const
{
    app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette;
    palette.setColor(QPalette::Window, colour(QStringLiteral("window")));
    palette.setColor(QPalette::WindowText, colour(QStringLiteral("text")));
    palette.setColor(QPalette::Base, colour(QStringLiteral("base")));
    palette.setColor(QPalette::AlternateBase, colour(QStringLiteral("window")));
    palette.setColor(QPalette::Text, colour(QStringLiteral("text")));
    palette.setColor(QPalette::Button, colour(QStringLiteral("button")));
    palette.setColor(QPalette::ButtonText, colour(QStringLiteral("text")));
    palette.setColor(QPalette::Highlight, colour(QStringLiteral("highlight")));
    palette.setColor(QPalette::HighlightedText, colour(QStringLiteral("highlightedText")));
    palette.setColor(QPalette::Link, colour(QStringLiteral("accent")));
    // The bevel colours Fusion draws frames, grids and sliders with, from the button colour.
    const QColor button = colour(QStringLiteral("button"));
    palette.setColor(QPalette::Light, button.lighter(150));
    palette.setColor(QPalette::Midlight, button.lighter(125));
    palette.setColor(QPalette::Mid, colour(QStringLiteral("border")));
    palette.setColor(QPalette::Dark, button.darker(150));
    palette.setColor(QPalette::Shadow, QColor(Qt::black));
    palette.setColor(QPalette::ToolTipBase, colour(QStringLiteral("base")));
    palette.setColor(QPalette::ToolTipText, colour(QStringLiteral("text")));
    palette.setColor(QPalette::PlaceholderText, colour(QStringLiteral("mutedText")));
    // No etched highlight under disabled text: Fusion draws disabled menu
    // entries over the Light colour offset by a pixel, which on a dark window
    // reads as bright, embossed text.
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colour(QStringLiteral("disabledText")));
    palette.setColor(QPalette::Disabled, QPalette::Light, colour(QStringLiteral("window")));
    app.setPalette(palette);
    app.setStyleSheet(expandTemplate(QString::fromLatin1(kStyleSheet)));
}

QColor MoxStyle::colour(const QString &role) const
{
    return m_palette.value(role, QColor(Qt::magenta));
}

QColor MoxStyle::messageColour(MsgLevel level) const
{
    switch (level) {
    case Warning:
        return colour(QStringLiteral("warning"));
    case Error:
        return colour(QStringLiteral("error"));
    case Info:
        break;
    }
    return colour(QStringLiteral("info"));
}

QColor MoxStyle::roleColour(LabelRole role) const
{
    switch (role) {
    case Hint:
        return colour(QStringLiteral("hint"));
    case Muted:
        return colour(QStringLiteral("mutedText"));
    case Accent:
        return colour(QStringLiteral("accent"));
    case Success:
        return colour(QStringLiteral("success"));
    case WarningRole:
        return colour(QStringLiteral("warning"));
    case ErrorRole:
        return colour(QStringLiteral("error"));
    case Normal:
        break;
    }
    return colour(QStringLiteral("text"));
}

QString MoxStyle::labelRoleName(LabelRole role)
{
    switch (role) {
    case Hint:
        return QStringLiteral("hint");
    case Muted:
        return QStringLiteral("muted");
    case Accent:
        return QStringLiteral("accent");
    case Success:
        return QStringLiteral("success");
    case WarningRole:
        return QStringLiteral("warning");
    case ErrorRole:
        return QStringLiteral("error");
    case Normal:
        break;
    }
    return QStringLiteral("normal");
}

void MoxStyle::setLabelRole(QWidget *label, LabelRole role)
{
    const QString name = labelRoleName(role);
    if (label->property("labelRole").toString() == name)
        return;
    label->setProperty("labelRole", name);
    // The style sheet selects on the property; a change shows only after a re-polish.
    label->style()->unpolish(label);
    label->style()->polish(label);
}

QString MoxStyle::expandTemplate(const QString &styleSheetTemplate) const
{
    static const QRegularExpression placeholder(QStringLiteral(R"(\{([A-Za-z]+)(?:@(\d{1,3}))?\})"));
    QString out;
    qsizetype last = 0;
    auto it = placeholder.globalMatch(styleSheetTemplate);
    while (it.hasNext()) {
        const QRegularExpressionMatch m = it.next();
        out += styleSheetTemplate.mid(last, m.capturedStart() - last);
        QColor c = colour(m.captured(1));
        QString text = c.name(QColor::HexRgb);
        if (m.capturedLength(2) > 0) {
            const int percent = std::clamp(m.captured(2).toInt(), 0, 100);
            text = QStringLiteral("rgba(%1, %2, %3, %4%)").arg(c.red()).arg(c.green()).arg(c.blue()).arg(percent);
        }
        out += text;
        last = m.capturedEnd();
    }
    out += styleSheetTemplate.mid(last);
    return out;
}

double MoxStyle::contrastRatio(const QColor &a, const QColor &b)
{
    // WCAG 2 relative luminance of sRGB colours.
    const auto luminance = [](const QColor &c) {
        const auto channel = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
        return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
    };
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor MoxStyle::readableOn(const QColor &background, const QColor &preferred)
{
    if (contrastRatio(preferred, background) >= kMinimumContrast)
        return preferred;
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return contrastRatio(black, background) >= contrastRatio(white, background) ? black : white;
}
