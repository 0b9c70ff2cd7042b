#pragma once

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

class QApplication;
class QWidget;

// The theme engine: named palettes, a style-sheet template whose placeholders
// name a palette role ("{window}", optionally with an alpha percentage
// "{accent@40}"), and the message-level colours every panel and the status
// line use. Four built-in themes: dark (the default), light, high contrast and
// dim red. Each is a complete palette over the Fusion style plus the style
// sheet expanded from its colours. GUI thread only.
class MoxStyle : public QObject
{
    Q_OBJECT
public:
    // Severity of a panel message or status text.
    enum MsgLevel { Info = 0, Warning = 1, Error = 2 };
    Q_ENUM(MsgLevel)
    // What a label says about its text; the style sheet colours a label by the
    // "labelRole" property, rich text asks roleColour for the same colour.
    enum LabelRole { Normal, Hint, Muted, Accent, Success, WarningRole, ErrorRole };
    Q_ENUM(LabelRole)

    explicit MoxStyle(QObject *parent = nullptr);

    static QString defaultThemeId();
    QStringList themeIds() const;
    // The name a user chooses a theme by ("Dark"); the id itself for an unknown one.
    static QString themeDisplayName(const QString &id);
    QString currentThemeId() const { return m_themeId; }

    // Applies a theme by id; an unknown id applies the default theme.
    void applyTheme(const QString &id);
    // Installs the current palette and style sheet on the application.
    void install(QApplication &app) const;

    QColor colour(const QString &role) const;
    QColor messageColour(MsgLevel level) const;
    QColor roleColour(LabelRole role) const;
    // The "labelRole" property value the style sheet selects on ("warning", ...).
    static QString labelRoleName(LabelRole role);
    // WCAG body text needs this much contrast against its background.
    static constexpr double kMinimumContrast = 4.5;
    // The WCAG 2 contrast ratio of two opaque colours (1 to 21).
    static double contrastRatio(const QColor &a, const QColor &b);
    // preferred when it reads on background, otherwise black or white, whichever reads better.
    static QColor readableOn(const QColor &background, const QColor &preferred);
    // Sets a label's role and re-polishes it so the style sheet's colour shows.
    static void setLabelRole(QWidget *label, LabelRole role);
    // "{role}" and "{role@percent}" replaced by the palette's colours.
    QString expandTemplate(const QString &styleSheetTemplate) const;

signals:
    void themeChanged(const QString &id);

private:
    QString m_themeId;
    QHash<QString, QColor> m_palette;
};
