#pragma once

#include <QWidget>

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

    /// Names the arrows for tool tips and for people who do not see them.
    void setStepNames(const QString &increase, const QString &decrease);

Q_SIGNALS:
    /// The user moved the number by one.
    void stepped();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    QToolButton *addArrow(const QString &name, Qt::ArrowType arrow, int by);
    void step(int by);

    qint32 mValue = 0;
    QToolButton *mUp;
    QToolButton *mDown;
};
