#include "storesandbox.h"

#include "settings/settingsstore.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace quenfor {

namespace {

class ForeignConfigHome : public ::testing::Environment {
public:
    void SetUp() override {
        ASSERT_TRUE(m_folder.isValid());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
    }

private:
    QTemporaryDir m_folder;
};

[[maybe_unused]] const auto* const foreignConfigHome = ::testing::AddGlobalTestEnvironment(new ForeignConfigHome);

} // namespace

void StoreSandbox::SetUp() {
    ASSERT_TRUE(m_root.isValid());
    SettingsStore::setStoreRoot(m_root.path());
}

void StoreSandbox::TearDown() {
    SettingsStore::setStoreRoot(QString());
}

QString StoreSandbox::iniFile(const QString& application) const {
    return m_root.path() + u"/VB and VBA Program Settings/"_s + application + u".ini"_s;
}

} // namespace quenfor
