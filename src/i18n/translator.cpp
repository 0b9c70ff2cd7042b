#include "i18n/translator.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>

Translator::Translator(QObject *parent) : QObject(parent), m_languageId(defaultLanguageId()) {}

QString Translator::defaultLanguageId()
{
    return QStringLiteral("en");
}

QStringList Translator::languageIds()
{
    QStringList ids{defaultLanguageId()};
    const QStringList files = QDir(QStringLiteral(":/i18n")).entryList({QStringLiteral("talu_*.qm")}, QDir::Files);
    for (const QString &file : files)
        ids << file.mid(5, file.size() - 5 - 3); // "talu_" <id> ".qm"
    ids.removeDuplicates();
    ids.sort();
    return ids;
}

QString Translator::languageName(const QString &id)
{
    // The languages we ship, as their speakers write them (the locale's own
    // names carry a country: "American English", "español de España").
    static const QHash<QString, QString> names{{QStringLiteral("en"), QStringLiteral("English")},
                                               {QStringLiteral("de"), QStringLiteral("Deutsch")},
                                               {QStringLiteral("es"), QStringLiteral("Español")},
                                               {QStringLiteral("fr"), QStringLiteral("Français")}};
    if (const auto it = names.constFind(id); it != names.cend())
        return *it;
    const QString name = QLocale(id).nativeLanguageName();
    return name.isEmpty() ? id : name.left(1).toUpper() + name.mid(1);
}

void Translator::install(QCoreApplication &app)
{
    m_app = &app;
}

QString Translator::applyLanguage(const QString &id)
{
    if (m_app && m_dictionaryInstalled) {
        m_app->removeTranslator(&m_dictionary);
        m_app->removeTranslator(&m_qtDictionary);
        m_dictionaryInstalled = false;
    }
    QString applied = defaultLanguageId();
    if (id != defaultLanguageId() && m_dictionary.load(QStringLiteral(":/i18n/talu_%1.qm").arg(id))) {
        applied = id;
        // Qt's own texts (standard buttons, file dialogs) from the Qt installation,
        // when it has them; without, those few stay English.
        const bool haveQt = m_qtDictionary.load(QStringLiteral("qtbase_%1").arg(id),
                                                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        if (m_app) {
            if (haveQt)
                m_app->installTranslator(&m_qtDictionary);
            m_dictionaryInstalled = m_app->installTranslator(&m_dictionary);
        }
    }
    const bool changed = applied != m_languageId;
    m_languageId = applied;
    if (changed)
        emit languageChanged(m_languageId);
    return m_languageId;
}
