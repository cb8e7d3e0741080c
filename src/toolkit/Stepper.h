// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <limits>

class QToolButton;

/**
 * Two arrows that raise and lower a number that is shown elsewhere.
 *
 * The range is that of 32 bits: what a user may choose is for the receiver of stepped() to say.
 */
class Stepper : public QWidget
{
    Q_OBJECT

public:
    explicit Stepper(QWidget *parent = nullptr);

    qint32 intValue() const { return mValue; }
    /// Sets the number without a signal.
    void setIntValue(qint32 value);
    /// Chooses a number as the user would, with the arrows.
    void chooseValue(qint64 value);

    /// The bounds that assistive technology is told; they bind nobody.
    void setBounds(qint32 smallest, qint32 largest);
    qint32 smallest() const { return mSmallest; }
    qint32 largest() const { return mLargest; }

    /// Names the arrows for tool tips and for people who do not see them.
    void setStepNames(const QString &increase, const QString &decrease);

    /// Lets the keys that move the number do so in the field that shows it, too.
    void setField(QWidget *field);

    /// Takes those keys from the field, and has disabled arrows show the stepper's tip.
    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// The user moved the number.
    void stepped();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QToolButton *addArrow(const QString &name, Qt::ArrowType arrow, int by);
    bool stepByKey(const QKeyEvent &event);
    void step(int by);

    qint32 mValue = 0;
    qint32 mSmallest = std::numeric_limits<qint32>::min();
    qint32 mLargest = std::numeric_limits<qint32>::max();
    QToolButton *mUp;
    QToolButton *mDown;
};
