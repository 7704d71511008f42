#include "platform/values/Values.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

bool IsDigit(QChar character) {
    return character >= u'0' && character <= u'9';
}

/// Reads the longest number that a text begins with.
class NumberScan {
  public:
    explicit NumberScan(QStringView text) {
        for (const QChar character : text) {
            if (character == u' ' || character == u'\t' || character == u'\n')
                continue;
            if (!Take(character))
                break;
        }
    }

    double Value() const {
        bool ok = false;
        const double value = number_.left(complete_).toDouble(&ok);
        return ok && std::isfinite(value) ? value : 0;
    }

  private:
    enum class Place { Start, Whole, Fraction, ExponentStart, Exponent };

    bool Take(QChar character) {
        const bool sign = character == u'-' || character == u'+';
        if (IsDigit(character)) {
            if (place_ == Place::Start)
                place_ = Place::Whole;
            else if (place_ == Place::ExponentStart)
                place_ = Place::Exponent;
            hasDigits_ = true;
        } else if (sign && place_ == Place::Start && number_.isEmpty()) {
            // A sign alone is no number yet.
        } else if (sign && place_ == Place::ExponentStart && number_.back() == 'e') {
            // The exponent's sign.
        } else if (character == u'.' && (place_ == Place::Start || place_ == Place::Whole)) {
            place_ = Place::Fraction;
        } else if ((character == u'e' || character == u'E') && hasDigits_ &&
                   (place_ == Place::Whole || place_ == Place::Fraction)) {
            place_ = Place::ExponentStart;
            number_ += 'e';
            return true;
        } else {
            return false;
        }
        number_ += static_cast<char>(character.unicode());
        if (hasDigits_ && place_ != Place::ExponentStart)
            complete_ = number_.size();
        return true;
    }

    Place place_ = Place::Start;
    bool hasDigits_ = false;
    QByteArray number_;
    qsizetype complete_ = 0; ///< how much of number_ is a number by itself
};

} // namespace

namespace Values {

double Val(QStringView text) {
    return NumberScan(text).Value();
}

int WholeVal(QStringView text) {
    constexpr double Lowest = std::numeric_limits<int>::min();
    constexpr double Highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(std::trunc(Val(text)), Lowest, Highest));
}

std::optional<double> ToNumber(QStringView text) {
    bool ok = false;
    const double value = Trim(text.toString()).toDouble(&ok);
    // "nan" and "inf" are words here, not numbers.
    if (!ok || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::optional<bool> ToBoolean(QStringView text) {
    const QString trimmed = Trim(text.toString());
    if (trimmed.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (trimmed.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    if (const auto number = ToNumber(trimmed))
        return *number != 0;
    return std::nullopt;
}

QString FromBoolean(bool value) {
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString Trim(const QString& text) {
    qsizetype from = 0;
    qsizetype to = text.size();
    while (from < to && text[from] == u' ')
        ++from;
    while (to > from && text[to - 1] == u' ')
        --to;
    return text.mid(from, to - from);
}

} // namespace Values
