#pragma once

#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quenfor {

// Each test gets a store of its own in a fresh temporary folder. Besides, the whole test program
// runs with XDG_CONFIG_HOME in a temporary folder, so that even a store opened without the
// sandbox never reaches the user's real settings.
class StoreSandbox : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    QString rootFolder() const { return m_root.path(); }
    QString iniFile(const QString& application) const;

private:
    QTemporaryDir m_root;
};

} // namespace quenfor
