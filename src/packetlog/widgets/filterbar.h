#pragma once

#include "packetlog/displayfilter.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QPushButton;
class MoxStyle;

// The display filter bar: an editable field that says while typing whether
// the filter compiles (the theme's valid / invalid colours behind the text,
// the filter's own message below), a list of recent filters, and Enter or
// "Apply" to use it. A filter that does not compile is never applied: the
// list keeps what it shows. The recent filters are kept by the owner.
class FilterBar : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kRecentFilters = 10;

    explicit FilterBar(const MoxStyle &style, QWidget *parent = nullptr);

    QString text() const;
    void setText(const QString &text);
    bool isValid() const { return m_valid; }
    QStringList recentFilters() const;
    void setRecentFilters(const QStringList &filters);

signals:
    // A compiled filter to apply (null: no filter, every record).
    void filterApplied(std::shared_ptr<const PacketLog::FilterNode> filter, const QString &text);
    // A filter was applied: the recent list, newest first, at most kRecentFilters.
    void recentFiltersChanged(const QStringList &filters);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslateUi();
    void check();
    void showCompiled(const PacketLog::FilterCompileResult &result);
    void apply();
    void showState();

    const MoxStyle &m_style;
    QComboBox *m_field = nullptr;
    QPushButton *m_apply = nullptr;
    QLabel *m_error = nullptr;
    bool m_valid = true;
};
