#include "NumberBox.h"

#include "Json.h"

#include <QLineEdit>
#include <QLocale>
#include <QStyle>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

#include <cmath>
#include <limits>

namespace explorer {

using catalogue::Kind;
using nlohmann::json;

namespace {

constexpr int kMostSeen = 24;  // characters; longer texts scroll

}  // namespace

NumberBox::NumberBox(Kind kind, QWidget* pParent) : QAbstractSpinBox(pParent), m_kind(kind)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);  // fits into narrow panes
    setFocusPolicy(Qt::StrongFocus);
    lineEdit()->setText(QStringLiteral("0"));
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        updateGeometry();
        emit Changed();
    });
}

QString NumberBox::Problem() const
{
    const QString typed = text().trimmed();
    if (typed.isEmpty()) {
        return tr("Enter a number");
    }
    bool isNumber = false;
    if (m_kind == Kind::Double) {
        const double number = QLocale::c().toDouble(typed, &isNumber);
        return isNumber && std::isfinite(number) ? QString() : tr("Must be a number, such as 0.5");
    }
    const qint64 number = typed.toLongLong(&isNumber);
    if (isNumber && number >= Smallest() && number <= Largest()) {
        return {};
    }
    // A number that is too long for any integer type is out of range, too.
    QLocale::c().toDouble(typed, &isNumber);
    const bool isWhole = isNumber && !typed.contains(QLatin1Char('.')) && !typed.contains(u'e', Qt::CaseInsensitive);
    return isWhole ? tr("Must be from %1 to %2").arg(Smallest()).arg(Largest()) : tr("Not a whole number");
}

json NumberBox::Value() const
{
    if (!Problem().isEmpty()) {
        return 0;
    }
    const QString typed = text().trimmed();
    return m_kind == Kind::Double ? json(QLocale::c().toDouble(typed)) : json(typed.toLongLong());
}

void NumberBox::SetValue(const json& value)
{
    lineEdit()->setText(CompactJsonText(value));
}

void NumberBox::stepBy(int steps)
{
    const json value = Value();
    if (m_kind == Kind::Double) {
        SetValue(value.get<double>() + steps);
        return;
    }
    // Limited to the range.
    const auto number = value.get<qint64>();
    if (steps > 0) {
        SetValue(number > Largest() - steps ? Largest() : number + steps);
    } else {
        SetValue(number < Smallest() - steps ? Smallest() : number + steps);
    }
}

QSize NumberBox::sizeHint() const
{
    // One width for all kinds, so that fields align.
    return SizeFor(QString::number(std::numeric_limits<qint64>::min()));
}

QSize NumberBox::minimumSizeHint() const
{
    const QString shortest = QStringLiteral("00000000");
    return SizeFor(text().size() > shortest.size() ? text().left(kMostSeen) : shortest);
}

QSize NumberBox::SizeFor(const QString& longest) const
{
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(longest + QLatin1String("00")), lineEdit()->sizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, text, this);
}

QAbstractSpinBox::StepEnabled NumberBox::stepEnabled() const
{
    if (isReadOnly()) {
        return StepNone;
    }
    StepEnabled enabled = StepUpEnabled | StepDownEnabled;
    if (m_kind != Kind::Double) {
        const auto number = Value().get<qint64>();
        enabled.setFlag(StepUpEnabled, number < Largest());
        enabled.setFlag(StepDownEnabled, number > Smallest());
    }
    return enabled;
}

void NumberBox::wheelEvent(QWheelEvent* pEvent)
{
    // The wheel scrolls the form.
    if (hasFocus()) {
        QAbstractSpinBox::wheelEvent(pEvent);
    } else {
        pEvent->ignore();
    }
}

qint64 NumberBox::Smallest() const
{
    return m_kind == Kind::Int ? std::numeric_limits<int>::min() : std::numeric_limits<qint64>::min();
}

qint64 NumberBox::Largest() const
{
    return m_kind == Kind::Int ? std::numeric_limits<int>::max() : std::numeric_limits<qint64>::max();
}

}  // namespace explorer
