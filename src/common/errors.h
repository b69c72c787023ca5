#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

namespace quenfor {

// The run-time error number for an invalid argument; the path conversions raise it.
inline constexpr int invalidArgumentErrorNumber = 5;

// An error with a number, the place it came from and a German text for the user.
class QuenforError : public std::exception {
public:
    QuenforError(int number, QString source, QString description);

    int number() const noexcept { return m_number; }
    const QString& source() const noexcept { return m_source; }
    const QString& description() const noexcept { return m_description; }

    const char* what() const noexcept override;

private:
    int m_number;
    QString m_source;
    QString m_description;
    QByteArray m_what;
};

// Error 5 with its usual German text, raised by the named function.
QuenforError invalidArgumentError(const QString& source);

} // namespace quenfor
