#pragma once

#include <QLineEdit>

/// A free text field that sends its action as desktop fields do: on Return, and on losing
/// focus if its text was changed since the last action or since it was set by the program.
/// Nothing that is typed is refused, but what was not read as a number is gone from the field when
/// it sends its action, so that nobody takes "10^2" for a hundred.
class TextField : public QLineEdit
{
    Q_OBJECT

public:
    explicit TextField(QWidget *parent = nullptr);

    /// The number that the text begins with (numbertext::doubleValue).
    [[nodiscard]] double doubleValue() const;
    /// The whole number that the text begins with (numbertext::integerValue).
    [[nodiscard]] int integerValue() const;

    /// Shows `value` as "%g"; sends no action.
    void setDoubleValue(double value);

    /// Shows `text`; sends no action, now or on losing focus.
    void setStringValue(const QString &text);

    /// Sends the action if the text was changed by the user since the last one.
    void takeTypedText();

Q_SIGNALS:
    /// The user has entered the text.
    void committed();

protected:
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void commit();
    void showWhatIsRead();

    bool m_editedByUser = false;
};
