#include "settings/settings_store.h"

#include "settings/settings_storage.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <thread>

namespace orvelle {
namespace {

/// Editors empty, rename and write in several steps; the file is read when they have come to rest.
constexpr std::chrono::milliseconds settleTime{100};

/// Programs lock the settings for a moment. The user hears of a lock that outlasts these tries, two seconds.
constexpr int quickTries = 40;
constexpr std::chrono::milliseconds retryInterval{50};
constexpr std::chrono::milliseconds lateRetryInterval{1000};
/// How long the end of the program may take.
constexpr std::chrono::milliseconds lastLockWait{500};

} // namespace

SettingsStore::SettingsStore(const QString& filePath, QObject* parent)
    : SettingsStore(std::make_unique<SettingsFile>(filePath), parent) {}

SettingsStore::SettingsStore(std::unique_ptr<SettingsStorage> storage, QObject* parent)
    : QObject(parent)
    , m_storage(std::move(storage)) {
    m_reloadDelay.setObjectName(QStringLiteral("reloadDelay"));
    m_reloadDelay.setSingleShot(true);
    m_reloadDelay.setInterval(settleTime);
    connect(&m_reloadDelay, &QTimer::timeout, this, &SettingsStore::reload);
    m_tuningDelay.setObjectName(QStringLiteral("tuningDelay"));
    m_tuningDelay.setSingleShot(true);
    m_tuningDelay.setInterval(tuningInterval);
    connect(&m_tuningDelay, &QTimer::timeout, this, [this] {
        if (m_isSaveDue)
            saveSoon();
    });
    m_retryDelay.setObjectName(QStringLiteral("retryDelay"));
    m_retryDelay.setSingleShot(true);
    connect(&m_retryDelay, &QTimer::timeout, this, &SettingsStore::save);
    // Not started anew by each change: a storage that is never at rest would not be read.
    m_storage->watch(keys(), [this] {
        if (!m_reloadDelay.isActive())
            m_reloadDelay.start();
    });
    reload();
}

SettingsStore::~SettingsStore() {
    const QDeadlineTimer deadline(lastLockWait);
    while (store() == SaveResult::locked && !deadline.hasExpired())
        std::this_thread::sleep_for(retryInterval);
}

bool SettingsStore::isShown(ModuleId module) const {
    switch (module) {
#define ORVELLE_MODULE(id, Type, Title, ...)                                                                 \
    case ModuleId::id:                                                                                       \
        return show##Title();
        ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    }
    return false;
}

void SettingsStore::tune(const QString& property, const QVariant& value) {
    m_isTuning = true;
    setProperty(property.toLatin1(), value);
    m_isTuning = false;
}

void SettingsStore::finishAssignment(const AnySetting& setting, bool isChanged) {
    // Observers that set something else in turn are not tuning.
    const bool isTuned = std::exchange(m_isTuning, false);
    if (!setting.isUnsaved())
        updateSaveError();
    else if (isTuned)
        saveSoon();
    else
        save();
    if (!isChanged)
        return;
    Q_EMIT(this->*setting.changedSignal())();
    Q_EMIT changed();
}

/// Saves at once, or a little later where a tuned value was saved just now.
void SettingsStore::saveSoon() {
    m_isSaveDue = m_tuningDelay.isActive();
    if (m_isSaveDue)
        return;
    save();
    m_tuningDelay.start();
}

void SettingsStore::save() {
    m_isSaveDue = false;
    if (store() == SaveResult::locked)
        retry();
    else
        m_lockedTries = 0;
    updateSaveError();
}

SaveResult SettingsStore::store() {
    StoredValues values;
    for (const AnySetting* setting : m_settings) {
        if (setting->isUnsaved())
            values.insert(setting->key(), setting->storedForm());
    }
    const SaveResult result = values.isEmpty() ? SaveResult::saved : m_storage->write(values);
    if (result == SaveResult::saved) {
        for (AnySetting* setting : m_settings) {
            if (setting->isUnsaved())
                setting->markSaved();
        }
    }
    return result;
}

void SettingsStore::retry() {
    ++m_lockedTries;
    m_retryDelay.start(m_lockedTries > quickTries ? lateRetryInterval : retryInterval);
}

void SettingsStore::updateSaveError() {
    const bool isLocked = m_lockedTries > 0 && m_lockedTries <= quickTries;
    if (m_isSaveDue || isLocked)
        return; // what is not stored yet did not fail
    const bool failed = std::ranges::any_of(m_settings, &AnySetting::isUnsaved);
    const QString error = failed ? m_storage->failureReason() : QString();
    if (std::exchange(m_saveError, error) != error)
        Q_EMIT saveErrorChanged();
}

QStringList SettingsStore::keys() const {
    QStringList keys;
    for (const AnySetting* setting : m_settings)
        keys.append(setting->key());
    return keys;
}

void SettingsStore::reload() {
    const std::optional<StoredValues> stored = m_storage->read(keys());
    if (!stored)
        return;

    // Observers of one property may look at another: all of them are assigned before the first is announced.
    std::vector<const AnySetting*> changedSettings;
    for (AnySetting* setting : m_settings) {
        if (setting->follow(stored->value(setting->key())))
            changedSettings.push_back(setting);
    }
    updateSaveError();
    for (const AnySetting* setting : changedSettings)
        Q_EMIT(this->*setting->changedSignal())();
    if (!changedSettings.empty())
        Q_EMIT changed();
}

} // namespace orvelle
