#include "platform/qt/QtSettingsHive.h"

#include <utility>

namespace quillet {
namespace {

/// The store's key for a value.
QString KeyOf(const std::string& sPath, const std::string& sName) {
  return QString::fromStdString(sPath).replace('\\', '/') + '/' + QString::fromStdString(sName);
}

}  // namespace

QtSettingsHive::QtSettingsHive()
    : QtSettingsHive(PlatformStore(HiveRoot::User), PlatformStore(HiveRoot::Machine)) {}

QtSettingsHive::QtSettingsHive(std::unique_ptr<SettingsStore> oUser,
                               std::unique_ptr<SettingsStore> oMachine)
    : m_oUser(std::move(oUser)), m_oMachine(std::move(oMachine)) {
  m_oGathering.setSingleShot(true);
  m_oGathering.setInterval(kGatherMilliseconds);
  m_oGathering.callOnTimeout([this] { Flush(); });
}

QtSettingsHive::~QtSettingsHive() {
  QtSettingsHive::Flush();
}

void QtSettingsHive::Flush() {
  m_oUser->Flush();
  m_oMachine->Flush();
}

std::optional<std::string> QtSettingsHive::Read(HiveRoot eRoot, const std::string& sPath,
                                                const std::string& sName) const {
  const std::optional<QString> sText = StoreOf(eRoot).Read(KeyOf(sPath, sName));
  return sText ? std::optional(sText->toStdString()) : std::nullopt;
}

bool QtSettingsHive::Write(HiveRoot eRoot, const std::string& sPath, const std::string& sName,
                           const std::string& sValue) {
  const QString sKey = KeyOf(sPath, sName);
  const QString sText = QString::fromStdString(sValue);
  return StoreOf(eRoot).Read(sKey) == sText || Change(StoreOf(eRoot), sKey, sText);
}

void QtSettingsHive::Delete(HiveRoot eRoot, const std::string& sPath, const std::string& sName) {
  const QString sKey = KeyOf(sPath, sName);
  if (StoreOf(eRoot).Read(sKey)) {
    Change(StoreOf(eRoot), sKey, std::nullopt);
  }
}

SettingsStore& QtSettingsHive::StoreOf(HiveRoot eRoot) const {
  return eRoot == HiveRoot::Machine ? *m_oMachine : *m_oUser;
}

bool QtSettingsHive::Change(SettingsStore& oStore, const QString& sKey,
                            const std::optional<QString>& sValue) {
  const bool bDone = oStore.Change(sKey, sValue);
  if (bDone && !m_oGathering.isActive()) {
    m_oGathering.start();
  }
  return bDone;
}

}  // namespace quillet
