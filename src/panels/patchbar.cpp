#include "panels/patchbar.h"

#include "panels/clearbutton.h"
#include "panels/statuslabel.h"

#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

PatchBar::PatchBar(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("patchCaption"));
    layout->addWidget(m_caption);

    auto *row = new QHBoxLayout;
    row->setSpacing(6);
    m_pathEdit = new QLineEdit(this);
    m_pathEdit->setClearButtonEnabled(true);
    m_caption->setBuddy(m_pathEdit);
    m_browse = new QToolButton(this);
    m_upload = new QPushButton(this);
    m_upload->setMinimumWidth(96);
    row->addWidget(m_pathEdit, 1);
    row->addWidget(m_browse);
    row->addWidget(m_upload);
    layout->addLayout(row);

    m_status = new StatusLabel(this);
    layout->addWidget(m_status);
    m_status->showMessage([] { return tr("No patch loaded."); }, 0);

    connect(m_upload, &QPushButton::clicked, this, &PatchBar::onUpload);
    connect(m_pathEdit, &QLineEdit::returnPressed, this, &PatchBar::onUpload);
    connect(m_browse, &QToolButton::clicked, this, &PatchBar::onBrowse);
    retranslateUi();
}

void PatchBar::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QWidget::changeEvent(event);
}

void PatchBar::retranslateUi()
{
    m_caption->setText(tr("Patch File"));
    m_pathEdit->setPlaceholderText(tr("Path to a patch file (.tpatch, .mpz, .elm)"));
    m_browse->setText(tr("..."));
    m_browse->setToolTip(tr("Browse for a patch file"));
    // "..." says nothing to a screen reader; the tooltip says what it does.
    m_browse->setAccessibleName(m_browse->toolTip());
    m_pathEdit->setAccessibleName(tr("Patch file path"));
    nameClearButton(m_pathEdit, tr("Clear"));
    m_upload->setToolTip(tr("Load the patch and build the monitor"));
    m_upload->setText(m_busy ? tr("Loading...") : tr("Upload"));
}

void PatchBar::setBusy(bool busy)
{
    m_busy = busy;
    m_pathEdit->setEnabled(!busy);
    m_browse->setEnabled(!busy);
    m_upload->setEnabled(!busy);
    m_upload->setText(busy ? tr("Loading...") : tr("Upload"));
}

QString PatchBar::path() const
{
    return m_pathEdit->text();
}

void PatchBar::setPath(const QString &path)
{
    m_pathEdit->setText(path);
}

void PatchBar::onUpload()
{
    const QString path = m_pathEdit->text().trimmed();
    if (path.isEmpty()) {
        m_status->showMessage([] { return tr("Enter a patch path or pick one with the ... button."); }, 2);
        return;
    }
    emit uploadRequested(path);
}

void PatchBar::onBrowse()
{
    const QString current = m_pathEdit->text().trimmed();
    QString startFolder;
    if (!current.isEmpty()) {
        const QFileInfo info(current);
        if (info.exists() && info.isFile())
            startFolder = info.absolutePath();
        else if (info.absoluteDir().exists())
            startFolder = info.absolutePath();
    }
    const QString picked = QFileDialog::getOpenFileName(
        this, tr("Select Patch File"), startFolder,
        tr("Patch Files (*.tpatch *.mpz *.elm);;Torvane MOX Patch (*.tpatch);;MADRIX 5 Patch (*.mpz);;"
           "ENTTEC ELM Project (*.elm);;All Files (*)"));
    if (picked.isEmpty())
        return;
    m_pathEdit->setText(picked);
    onUpload();
}
