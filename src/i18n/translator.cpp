#include "i18n/translator.h"

#include <QCoreApplication>

Translator::Translator(QObject *parent) : QObject(parent), m_languageId(defaultLanguageId()) {}

QString Translator::defaultLanguageId()
{
    return QStringLiteral("en");
}

void Translator::install(QCoreApplication &app)
{
    m_app = &app;
}

QString Translator::applyLanguage(const QString &id)
{
    if (m_app && m_dictionaryInstalled) {
        m_app->removeTranslator(&m_dictionary);
        m_dictionaryInstalled = false;
    }
    QString applied = defaultLanguageId();
    if (id != defaultLanguageId() && m_dictionary.load(QStringLiteral(":/i18n/talu_%1.qm").arg(id))) {
        applied = id;
        if (m_app)
            m_dictionaryInstalled = m_app->installTranslator(&m_dictionary);
    }
    const bool changed = applied != m_languageId;
    m_languageId = applied;
    if (changed)
        emit languageChanged(m_languageId);
    return m_languageId;
}
