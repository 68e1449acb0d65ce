#include "imageview/AccessiblePicture.h"

#include "imageview/GraphImageView.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

namespace {

constexpr char valueProperty[] = "accessibleValue";

class Interface final : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit Interface(GraphImageView *view)
        : QAccessibleWidget(view, QAccessible::Graphic)
    {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? currentValue().toString()
                                          : QAccessibleWidget::text(kind);
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant currentValue() const override
    {
        const QWidget *const view = widget();
        return view != nullptr ? view->property(valueProperty) : QVariant();
    }
    /// The pointer is moved by keys, not by numbers.
    void setCurrentValue(const QVariant & /*value*/) override {}
    [[nodiscard]] QVariant maximumValue() const override { return {}; }
    [[nodiscard]] QVariant minimumValue() const override { return {}; }
    [[nodiscard]] QVariant minimumStepSize() const override { return {}; }
};

QAccessibleInterface *make(const QString & /*className*/, QObject *object)
{
    auto *const view = qobject_cast<GraphImageView *>(object);
    return view != nullptr ? new Interface(view) : nullptr;
}

} // namespace

void accessiblepicture::install() { QAccessible::installFactory(make); }

void accessiblepicture::setValue(GraphImageView &view, const QString &value)
{
    if (view.property(valueProperty).toString() == value)
        return;
    view.setProperty(valueProperty, value);
    QAccessibleValueChangeEvent changed(&view, value);
    QAccessible::updateAccessibility(&changed);
}
