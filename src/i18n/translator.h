#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

class QCoreApplication;

// The dictionary translator: holds the current language and the Qt
// translator installed on the application. English ("en") is the source
// language and needs no dictionary; other languages load ":/i18n/talu_<id>.qm"
// and Qt's own "qtbase_<id>.qm" for the standard dialogs.
// GUI thread only.
class Translator : public QObject
{
    Q_OBJECT
public:
    explicit Translator(QObject *parent = nullptr);

    static QString defaultLanguageId();
    // English and every language with a dictionary among the resources, sorted by id.
    static QStringList languageIds();
    // The language's own name for itself ("Deutsch"), for choosing it.
    static QString languageName(const QString &id);
    QString currentLanguageId() const { return m_languageId; }

    void install(QCoreApplication &app);
    // Applies a language by id; an id without a dictionary falls back to English.
    // Returns the id now in force.
    QString applyLanguage(const QString &id);

signals:
    void languageChanged(const QString &id);

private:
    QTranslator m_dictionary;
    QTranslator m_qtDictionary; // Qt's own texts in the same language
    QCoreApplication *m_app = nullptr;
    bool m_dictionaryInstalled = false;
    QString m_languageId;
};
