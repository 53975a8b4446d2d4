// The registry, where every change is stored at once.
#include <QSettings>

#include "platform/qt/SettingsStore.h"

namespace quillet {
namespace {

class RegistryStore : public SettingsStore {
 public:
  explicit RegistryStore(QString sRoot) : m_sRoot(std::move(sRoot)) { Open(); }

  [[nodiscard]] std::optional<QString> Read(const QString& sKey) override {
    return m_oRegistry->contains(sKey) ? std::optional(m_oRegistry->value(sKey).toString())
                                       : std::nullopt;
  }

  bool Change(const QString& sKey, const std::optional<QString>& sValue) override {
    sValue ? m_oRegistry->setValue(sKey, *sValue) : m_oRegistry->remove(sKey);
    const QSettings::Status eStatus = m_oRegistry->status();
    if (eStatus != QSettings::NoError) {
      Open();  // a QSettings never forgets a failure
    }
    return eStatus != QSettings::AccessError;
  }

  void Flush() override {}

 private:
  void Open() { m_oRegistry = std::make_unique<QSettings>(m_sRoot, QSettings::NativeFormat); }

  QString m_sRoot;
  std::unique_ptr<QSettings> m_oRegistry;
};

}  // namespace

std::unique_ptr<SettingsStore> PlatformStore(HiveRoot eRoot) {
  return std::make_unique<RegistryStore>(eRoot == HiveRoot::Machine ? "HKEY_LOCAL_MACHINE"
                                                                    : "HKEY_CURRENT_USER");
}

}  // namespace quillet
