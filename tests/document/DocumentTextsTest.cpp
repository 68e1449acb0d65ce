#include "document/TestDocument.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

/// Every text that the window shows or tells about its parts.
QStringList textsOf(const QWidget &window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        texts << widget->toolTip() << widget->statusTip() << widget->accessibleName()
              << widget->accessibleDescription();
        if (const auto *label = qobject_cast<const QLabel *>(widget))
            texts << label->text();
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            texts << button->text();
        if (const auto *box = qobject_cast<const QGroupBox *>(widget))
            texts << box->title();
        if (const auto *popup = qobject_cast<const QComboBox *>(widget))
            for (int i = 0; i < popup->count(); ++i)
                texts << popup->itemText(i);
    }
    for (const QAction *action : window.findChildren<QAction *>())
        texts << action->text() << action->toolTip();
    return texts;
}

/// Keys of ours look like "document.axes.reset"; the older ones are words in one,
/// "CantMakeConverter".
bool looksLikeAKey(const QString &text)
{
    static const QRegularExpression dotted(QStringLiteral("^[a-z]+(\\.[a-zA-Z0-9]+)+$"));
    static const QRegularExpression joined(
        QStringLiteral("^([A-Z][a-z]+){2,}$|^[XYTR]Axis$|^[XYTR]Value$"
                       "|^Auto[XT]$|^Equal[XT]$|^SortBy[XT]$"));
    return dotted.match(text).hasMatch() || joined.match(text).hasMatch();
}

QStringList keysIn(const QStringList &texts)
{
    return texts.filter(QRegularExpression(QStringLiteral("."))).isEmpty()
               ? QStringList{QStringLiteral("no texts at all")}
               : [&texts] {
                     QStringList keys;
                     for (const QString &text : texts)
                         if (looksLikeAKey(text))
                             keys << text;
                     return keys;
                 }();
}

} // namespace

TEST(DocumentTexts, noBareKeyShowsForAnyKindOfAxes)
{
    TestDocument test;
    for (const char *kind : {"chooseParallelAxes", "chooseQuadrangleAxes", "choosePolarAxes"}) {
        test.command(kind);
        const QStringList keys = keysIn(textsOf(test.document->window()));
        EXPECT_TRUE(keys.isEmpty()) << kind << ": " << keys.join(", ").toStdString();
    }
}

TEST(DocumentTexts, noBareKeyShowsWithoutAPicture)
{
    const TestDocument test{QSize(0, 0)};
    const QStringList keys = keysIn(textsOf(test.document->window()));
    EXPECT_TRUE(keys.isEmpty()) << keys.join(", ").toStdString();
}

TEST(DocumentTexts, everyControlHasAToolTip)
{
    const TestDocument test;
    QStringList without;
    for (const QWidget *widget : test.ui().mainColumn->findChildren<QWidget *>()) {
        const bool control = qobject_cast<const QAbstractButton *>(widget) ||
                             qobject_cast<const QComboBox *>(widget) ||
                             qobject_cast<const TextField *>(widget);
        if (control && widget->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        if (control && widget->toolTip().isEmpty() && widget->objectName() != "emptyOpenButton")
            without << widget->objectName();
    }
    EXPECT_TRUE(without.isEmpty()) << without.join(", ").toStdString();
}
