#pragma once

#include <QLabel>

#include <functional>

// A word-wrapping message line whose colour follows the message level
// (0 information, 1 warning, 2 error). The theme's style sheet colours it
// through the "msgLevel" property. The text is kept as a producer so that a
// language change can re-render it (on its own LanguageChange event). Its
// text is its accessible name, so a screen reader announces the message.
// GUI thread only.
class StatusLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int msgLevel READ messageLevel)
public:
    explicit StatusLabel(QWidget *parent = nullptr);

    void showMessage(std::function<QString()> producer, int level);
    int messageLevel() const { return m_level; }
    void retranslate();

protected:
    void changeEvent(QEvent *event) override;

private:
    std::function<QString()> m_producer;
    int m_level = 0;
};
