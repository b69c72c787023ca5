#include "common/errors.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quenfor {

QuenforError::QuenforError(int number, QString source, QString description)
    : m_number(number), m_source(std::move(source)), m_description(std::move(description)),
      m_what(m_description.toUtf8()) {}

const char* QuenforError::what() const noexcept {
    return m_what.constData();
}

QuenforError invalidArgumentError(const QString& source) {
    return {invalidArgumentErrorNumber, source, u"Ungültiger Prozeduraufruf oder ungültiges Argument"_s};
}

} // namespace quenfor
