#include "languages/ShownTexts.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace {

/// The status line's hint gives way to the values beside it, and its tool tip has it whole.
constexpr char yieldingLabel[] = "statusHint";

template <class Widget>
std::vector<const Widget *> visible(const QWidget &root)
{
    std::vector<const Widget *> widgets;
    if (const auto *self = qobject_cast<const Widget *>(&root))
        widgets.push_back(self);
    for (const Widget *widget : root.findChildren<Widget *>())
        if (widget->isVisible())
            widgets.push_back(widget);
    return widgets;
}

QString report(const QWidget &widget, const QString &text, QSize needed, QSize has)
{
    return QStringLiteral("%1 \"%2\" needs %3 x %4, has %5 x %6")
        .arg(widget.objectName(), text)
        .arg(needed.width())
        .arg(needed.height())
        .arg(has.width())
        .arg(has.height());
}

class Measuring
{
public:
    void check(const QWidget &widget, const QString &text, QSize needed, QSize has)
    {
        if (!text.isEmpty() && (needed.width() > has.width() || needed.height() > has.height()))
            found += report(widget, text, needed, has);
    }

    QStringList found;
};

QSize neededBy(const QLabel &label)
{
    if (!label.wordWrap())
        return label.sizeHint();
    return {0, label.heightForWidth(label.width())};
}

QSize editField(const QComboBox &popup)
{
    QStyleOptionComboBox option;
    option.initFrom(&popup);
    return popup.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popup)
        .size();
}

void addKey(const QString &text, QMap<QChar, QStringList> &owners)
{
    const QKeySequence keys = QKeySequence::mnemonic(text);
    if (!keys.isEmpty())
        owners[keys.toString().back()] += text;
}

QStringList shared(const QMap<QChar, QStringList> &owners)
{
    QStringList found;
    for (auto key = owners.begin(); key != owners.end(); ++key)
        if (key->size() > 1)
            found += QString(key.key()) + QStringLiteral(": ") + key->join(QStringLiteral(", "));
    return found;
}

QStringList textsOf(const QWidget &widget)
{
    QStringList texts{widget.toolTip(), widget.accessibleName(), widget.accessibleDescription(),
                      widget.windowTitle()};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        texts += label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        texts += button->text();
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        texts += box->title();
    if (const auto *popup = qobject_cast<const QComboBox *>(&widget))
        for (int i = 0; i < popup->count(); ++i)
            texts += popup->itemText(i);
    for (const QAction *action : widget.actions())
        texts += action->text();
    return texts;
}

} // namespace

namespace showntexts {

QStringList cutOff(const QWidget &root)
{
    Measuring measuring;
    for (const QLabel *label : visible<QLabel>(root))
        if (label->objectName() != QLatin1String(yieldingLabel))
            measuring.check(*label, label->text(), neededBy(*label), label->size());
    for (const QAbstractButton *button : visible<QAbstractButton>(root))
        measuring.check(*button, button->text(), button->sizeHint(), button->size());
    for (const QComboBox *popup : visible<QComboBox>(root))
        for (int i = 0; i < popup->count(); ++i)
            measuring.check(*popup, popup->itemText(i),
                            popup->fontMetrics().size(Qt::TextSingleLine, popup->itemText(i)),
                            editField(*popup));
    for (const QGroupBox *box : visible<QGroupBox>(root))
        measuring.check(*box, box->title(),
                        box->fontMetrics().size(Qt::TextShowMnemonic, box->title()), box->size());
    for (const QMenuBar *menus : visible<QMenuBar>(root))
        measuring.check(*menus, QStringLiteral("the menus"), menus->sizeHint(), menus->size());
    for (const QListWidget *list : visible<QListWidget>(root))
        measuring.check(*list, QStringLiteral("the list"), {list->sizeHintForColumn(0), 0},
                        list->viewport()->size());
    return measuring.found;
}

QStringList keysOfTwo(const QMenuBar *menus, const QWidget &page)
{
    QMap<QChar, QStringList> owners;
    if (menus != nullptr)
        for (const QAction *menu : menus->actions())
            addKey(menu->text(), owners);
    for (const QLabel *label : visible<QLabel>(page))
        if (label->buddy() != nullptr)
            addKey(label->text(), owners);
    for (const QAbstractButton *button : visible<QAbstractButton>(page))
        addKey(button->text(), owners);
    return shared(owners);
}

QStringList keysOfTwo(const QMenu &menu)
{
    QMap<QChar, QStringList> owners;
    for (const QAction *action : menu.actions())
        if (action->isVisible())
            addKey(action->text(), owners);
    return shared(owners);
}

QStringList withoutKey(const QMenu &menu)
{
    QStringList found;
    for (const QAction *action : menu.actions())
        if (!action->isSeparator() && QKeySequence::mnemonic(action->text()).isEmpty())
            found += action->text();
    return found;
}

QStringList bareKeys(const QWidget &root, const QStringList &keys)
{
    QStringList found;
    for (const QWidget *widget : visible<QWidget>(root))
        for (const QString &text : textsOf(*widget))
            // Some keys are texts too, the English "Cancel".
            if (keys.contains(text))
                found += widget->objectName() + QStringLiteral(": ") + text;
    return found;
}

} // namespace showntexts
