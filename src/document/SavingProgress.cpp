#include "document/SavingProgress.h"

#include "platform/Texts.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int widthOfBar = 90;
constexpr int mostCharactersOfName = 24;

/// Whether Escape may be meant for what the user is in the middle of: a drag, or a field whose text
/// was changed.
bool isInTheMiddle(const QWidget &window)
{
    const auto *field = qobject_cast<const QLineEdit *>(window.focusWidget());
    return QGuiApplication::mouseButtons() != Qt::NoButton || (field && field->isModified());
}

} // namespace

SavingProgress::SavingProgress(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_cancelButton(new QToolButton(this))
{
    setObjectName(QStringLiteral("savingProgress"));
    m_label->setTextFormat(Qt::PlainText);
    m_cancelButton->setObjectName(QStringLiteral("cancelSavingButton"));
    m_cancelButton->setText(texts::localized("Cancel"));
    m_cancelButton->setToolTip(texts::localized("document.saving.cancelTip"));
    m_cancelButton->setFocusPolicy(Qt::StrongFocus);
    // The status bar keeps its height.
    const int lineHeight = fontMetrics().height();
    m_cancelButton->setFixedHeight(lineHeight + 2);
    auto *bar = new QProgressBar(this);
    bar->setRange(0, 0); // nobody knows how long it takes
    bar->setTextVisible(false);
    bar->setFixedSize(widthOfBar, lineHeight - 4);
    bar->setAccessibleName(texts::localized("document.saving.progressName"));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_label);
    row->addWidget(bar);
    row->addWidget(m_cancelButton);
    connect(m_cancelButton, &QToolButton::clicked, this, &SavingProgress::cancelled);
    hide();
}

void SavingProgress::showPreparing(const QString &fileName)
{
    m_cancelButton->show();
    showStep("document.saving.preparing", fileName);
}

void SavingProgress::showWriting(const QString &fileName)
{
    m_cancelButton->hide();
    showStep("document.saving", fileName);
}

void SavingProgress::showStep(const char *textKey, const QString &fileName)
{
    const int most = mostCharactersOfName * fontMetrics().averageCharWidth();
    const QString name = fontMetrics().elidedText(fileName, Qt::ElideMiddle, most);
    m_label->setText(texts::localized(textKey).replace(QStringLiteral("%1"), name));
    show();
}

void SavingProgress::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    window()->installEventFilter(this);
}

void SavingProgress::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    window()->removeEventFilter(this);
}

// A key comes to the window when all from the one with the focus up to here have left it.
bool SavingProgress::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || watched != window() || m_cancelButton->isHidden())
        return QWidget::eventFilter(watched, event);
    const bool isMeant =
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel) && !isInTheMiddle(*window());
    if (isMeant)
        Q_EMIT cancelled();
    return isMeant;
}
