#include "app/command_line.h"

#include "settings/module_table.h"

#include <QCommandLineParser>

#include <algorithm>
#include <array>

namespace orvelle {
namespace {

static_assert(std::ranges::all_of(moduleTable, [](const ModuleInfo& module) {
    return module.key.size() <= longestRequestedModule;
}));

/// The options of the program, for one set of arguments.
class Options {
public:
    explicit Options(const QStringList& desktopNames)
        : m_desktop(QStringLiteral("desktop"), {}, QStringLiteral("name"), desktopNames.first())
        , m_session(QStringLiteral("session"), {}, QStringLiteral("id")) {
        m_parser.addOptions({m_help, m_version, m_desktop, m_settings, m_open, m_quit, m_session});
        m_parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    }

    /// Empty when the arguments are understood.
    [[nodiscard]] QString parse(const QStringList& arguments) {
        if (!m_parser.parse(arguments))
            return m_parser.errorText();
        if (const QStringList others = m_parser.positionalArguments(); !others.isEmpty())
            return QStringLiteral("Unexpected argument '%1'.").arg(others.first());
        if (std::ranges::count_if(std::array{&m_settings, &m_open, &m_quit},
                                  [this](const auto* option) { return m_parser.isSet(*option); }) > 1)
            return QStringLiteral("Only one of --settings, --open and --quit can be asked for.");
        return {};
    }

    [[nodiscard]] bool asksForHelp() const { return m_parser.isSet(m_help); }
    [[nodiscard]] bool asksForVersion() const { return m_parser.isSet(m_version); }
    [[nodiscard]] QString desktop() const { return m_parser.value(m_desktop); }
    [[nodiscard]] StartRequest request() const {
        if (m_parser.isSet(m_settings))
            return {StartRequest::Kind::openSettings, {}};
        if (m_parser.isSet(m_open))
            return {StartRequest::Kind::openPanel, m_parser.value(m_open)};
        if (m_parser.isSet(m_quit))
            return {StartRequest::Kind::quit, {}};
        return {};
    }

private:
    QCommandLineOption m_help{{QStringLiteral("h"), QStringLiteral("help")}};
    QCommandLineOption m_version{{QStringLiteral("v"), QStringLiteral("version")}};
    QCommandLineOption m_desktop;
    QCommandLineOption m_settings{QStringLiteral("settings")};
    QCommandLineOption m_open{QStringLiteral("open"), {}, QStringLiteral("module")};
    QCommandLineOption m_quit{QStringLiteral("quit")};
    /// What a session manager adds when it restores a session: `-session ID`. A restored session asks for no
    /// more than any other start.
    QCommandLineOption m_session;
    QCommandLineParser m_parser;
};

QStringList moduleKeys() {
    QStringList keys;
    for (const ModuleInfo& module : moduleTable)
        keys.append(module.key);
    return keys;
}

/// Qt's own text needs an application object.
QString helpText(const QStringList& desktopNames) {
    return QStringLiteral("Usage: orvelle [--desktop=NAME] [--settings | --open MODULE | --quit]\n"
                          "A system monitor in the menu bar.\n"
                          "\n"
                          "  --desktop=NAME  appear there, one of: %1\n"
                          "  --settings      open the settings\n"
                          "  --open MODULE   open the panel of a module, one of:\n"
                          "                  %2\n"
                          "  --quit          end the running program, and wait until it has ended\n"
                          "  -h, --help      print this text\n"
                          "  -v, --version   print the version\n"
                          "\n"
                          "Only one Orvelle runs on a desktop. Another start hands its wish to that one.\n"
                          "Without an option it moves the keyboard to the items of the bar.\n")
        .arg(desktopNames.join(u", "), moduleKeys().join(u", "));
}

/// Empty when the names in the arguments are known.
QString unknownName(const QString& desktop, const StartRequest& request, const QStringList& desktopNames) {
    const QStringList modules = moduleKeys();
    if (!desktopNames.contains(desktop))
        return QStringLiteral("Unknown desktop '%1'; it is one of: %2.")
            .arg(desktop, desktopNames.join(u", "));
    if (request.kind == StartRequest::Kind::openPanel && !modules.contains(request.module))
        return QStringLiteral("Unknown module '%1'; it is one of: %2.")
            .arg(request.module, modules.join(u", "));
    return {};
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments, const QStringList& desktopNames) {
    CommandLine result;
    Options options(desktopNames);
    result.error = options.parse(arguments).simplified(); // it may quote what the user wrote
    if (!result.error.isEmpty())
        return result;
    if (options.asksForHelp())
        result.answer = helpText(desktopNames);
    else if (options.asksForVersion())
        result.answer = QStringLiteral("orvelle " ORVELLE_VERSION "\n");
    if (!result.answer.isEmpty())
        return result;
    result.error = unknownName(options.desktop(), options.request(), desktopNames).simplified();
    if (!result.error.isEmpty())
        return result;
    result.desktop = options.desktop();
    result.request = options.request();
    return result;
}

} // namespace orvelle
