#include "bytes.h"
#include "parsers.h"
#include "require.h"
#include "shell/linux/session_bus.h"
#include "shell/painted/autostart.h"
#include "theme/fonts.h"

namespace orvelle::fuzz {

void fuzzBusAddress(std::string_view text) {
    const auto size = static_cast<qsizetype>(text.size());
    const std::optional<QByteArray> name = busSocket(QByteArray(text.data(), size));
    if (!name)
        return;
    require(name->size() <= size, "a name is a part of the address");
    require(busSocket("unix:path=" + name->toPercentEncoding()) == name,
            "a name is the same in another address");
}

/// An entry of the autostart folder; its first line is the path of a program too.
void fuzzAutostart(std::string_view text) {
    if (const auto entry = parseAutostart(QByteArray(text.data(), static_cast<qsizetype>(text.size())))) {
        const bool isStarted = isStartedBy(*entry, {QStringLiteral("GNOME")});
        require(!isStarted || !entry->program.isEmpty(), "an entry without a program starts nothing");
        require(!isStarted || !entry->isHidden, "a hidden entry starts nothing");
    }
    const QString path = u'/' + Bytes(text).line();
    const std::optional<AutostartEntry> own = parseAutostart(autostartText(path));
    require(own && own->program == path && own->tryProgram == path, "the own entry starts this program");
    require(isStartedBy(*own, {}), "the own entry is for every desktop");
}

void fuzzFontDescription(std::string_view text) {
    const QStringList families{QStringLiteral("Noto Sans"), QStringLiteral("Noto Sans Mono"),
                               QStringLiteral("Sans"), QStringLiteral("10")};
    const QString family = describedFamily(Bytes::text(text), families);
    require(family.isEmpty() || families.contains(family), "a family is one of the installed");
}

} // namespace orvelle::fuzz
