#include "style/moxstyle.h"

#include <QApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

namespace {

struct NamedColour
{
    const char *role;
    const char *value;
};

// The monitor is dark so that lit pixels read as they do on site; the dark
// theme keeps the rest of the window out of the way of that.
constexpr NamedColour kDark[] = {
    {"window", "#1e2227"},   {"base", "#15181c"},   {"text", "#e3e6ea"},    {"mutedText", "#9aa3ad"},
    {"button", "#2b3036"},   {"accent", "#f08220"}, {"border", "#3a4047"},  {"info", "#9fd4a3"},
    {"warning", "#f2c14e"},  {"error", "#ff6b6b"},  {"highlight", "#3d6ea8"}, {"success", "#6fcf73"},
    {"hint", "#b8c4d0"},     {"disabledText", "#6b737c"},
};
constexpr NamedColour kLight[] = {
    {"window", "#eef0f2"},   {"base", "#ffffff"},   {"text", "#1b1f24"},    {"mutedText", "#5b6570"},
    {"button", "#e1e4e8"},   {"accent", "#c25e00"}, {"border", "#b8bfc7"},  {"info", "#2e7d32"},
    {"warning", "#9a6b00"},  {"error", "#c62828"},  {"highlight", "#3d6ea8"}, {"success", "#2e7d32"},
    {"hint", "#3b4650"},     {"disabledText", "#9aa1a8"},
};

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
    return {QStringLiteral("dark"), QStringLiteral("light")};
}

QString MoxStyle::themeDisplayName(const QString &id)
{
    if (id == QLatin1StringView("dark"))
        return tr("Dark");
    if (id == QLatin1StringView("light"))
        return tr("Light");
    return id;
}

void MoxStyle::applyTheme(const QString &id)
{
    const bool light = id == QLatin1StringView("light");
    m_themeId = light ? QStringLiteral("light") : defaultThemeId();
    m_palette.clear();
    const auto apply = [this](const auto &table) {
        for (const NamedColour &c : table)
            m_palette.insert(QString::fromLatin1(c.role), QColor(QString::fromLatin1(c.value)));
    };
    if (light)
        apply(kLight);
    else
        apply(kDark);
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
