#pragma once

#include "shell/painted/painted_accessibility.h"

#include <QStringList>

namespace orvelle {

/// Plays an assistive program that listens as long as the object exists. At most one at a time.
class Announcements {
public:
    struct Announced {
        QAccessible::Event type;
        QString name; ///< of what the event is about, when it happened
        bool wasValid;
    };

    Announcements() {
        s_heard.clear();
        setAnnouncementHandler(hear);
    }
    ~Announcements() { setAnnouncementHandler(nullptr); }
    Announcements(const Announcements&) = delete;
    Announcements& operator=(const Announcements&) = delete;

    [[nodiscard]] static QStringList names(QAccessible::Event type) {
        QStringList names;
        for (const Announced& announced : s_heard) {
            if (announced.type == type && announced.wasValid)
                names.append(announced.name);
        }
        return names;
    }

private:
    static void hear(QAccessibleEvent& event) {
        const QAccessibleInterface* about = event.accessibleInterface();
        const bool isValid = about != nullptr && about->isValid();
        s_heard.append({event.type(), isValid ? about->text(QAccessible::Name) : QString(), isValid});
    }

    static inline QList<Announced> s_heard;
};

} // namespace orvelle
