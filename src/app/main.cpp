#include "app/appsettings.h"
#include "app/mainwindow.h"
#include "app/startup.h"
#include "app/updater.h"
#include "i18n/translator.h"
#include "style/moxstyle.h"
#include "talu_version.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include <memory>

int main(int argc, char *argv[])
{
    auto app = std::make_unique<QApplication>(argc, argv);

    // The updater relaunches us with "--apply-update <args...>": no window, no
    // settings, no theme; its exit code is ours.
    if (const auto handOver = updateHandOverArguments(QCoreApplication::arguments()))
        return applyUpdate(*handOver);

    QCoreApplication::setOrganizationName(QStringLiteral("Torvane"));
    QCoreApplication::setApplicationName(QStringLiteral("Art-Net Tester"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TALU_VERSION));
    // Matches the windows to the installed desktop entry (taskbar icon and name).
    QGuiApplication::setDesktopFileName(QStringLiteral("com.torvane.Talu"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Torvane TALU - see what an LED installation shows for a "
                                                    "stream of Art-Net DMX data."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Files to open, by their type: a patch (.tpatch, .mpz, .elm, "
                                                ".elmbackup), a recording (.tpx), network logs (.tlog, .pcapng, "
                                                ".pcap)."),
                                 QStringLiteral("[FILE...]"));
    const QCommandLineOption themeOption(QStringLiteral("theme"),
                                         QStringLiteral("Use this interface theme for this run only (%1).")
                                             .arg(MoxStyle().themeIds().join(QStringLiteral(", "))),
                                         QStringLiteral("ID"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
                                            QStringLiteral("Use this language for this run only (%1).")
                                                .arg(Translator::languageIds().join(QStringLiteral(", "))),
                                            QStringLiteral("ID"));
    parser.addOption(themeOption);
    parser.addOption(languageOption);
    parser.process(argumentsForNormalStart(QCoreApplication::arguments()));
    const QStringList files = parser.positionalArguments();

    auto icon = std::make_unique<QIcon>(QStringLiteral(":/icons/exelogo.ico"));
    if (icon->availableSizes().isEmpty())
        *icon = QIcon(QStringLiteral(":/icons/logo.png"));
    QApplication::setWindowIcon(*icon);

    // Theme and language are in force before the first widget exists, so no
    // widget is ever painted in the wrong look or language.
    auto settings = openSettings();
    MoxStyle style;
    // --theme and --language hold for this run and are not stored.
    style.applyTheme(parser.isSet(themeOption)
                         ? parser.value(themeOption)
                         : settings->value(SettingsKey::theme, MoxStyle::defaultThemeId()).toString());
    style.install(*app);
    Translator translator;
    translator.install(*app);
    translator.applyLanguage(parser.isSet(languageOption)
                                 ? parser.value(languageOption)
                                 : settings->value(SettingsKey::language, Translator::defaultLanguageId()).toString());

    auto window = std::make_unique<MainWindow>(&style);
    window->setTranslator(&translator);
    window->show();
    window->openPaths(files);
    // After the window is up and never in its way: the check runs on the event loop.
    window->updateController()->startBackgroundCheck();
    const int exitCode = app->exec();

    window.reset();
    settings.reset();
    icon.reset();
    app.reset();
    return exitCode;
}
