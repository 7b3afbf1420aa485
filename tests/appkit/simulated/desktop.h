#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// A desktop of macOS in the test's own process, behind the simulated declarations. Tests script it, do what
/// a user does, and read what the program has put there. No Objective-C is needed for that.
namespace orvelle::simulated {

/// Another or the same process of a program.
struct RunningProgram {
    int processIdentifier = 0;
    bool isTerminated = false;
};

/// How the desktop behaves. Tests change it before or while the program runs.
struct Script {
    double uptimeSeconds = 5000;
    double backingScale = 2;
    bool showsMenuBar = true;
    bool isMenuBarDark = true;            ///< `changeMenuBar` changes it while the program runs
    bool asksBeforeClosingPopover = true; ///< false: a press closes it without a question
    bool popoversFade = false;            ///< a closed popover stays shown until `finishFading`
    std::optional<std::string> bundleIdentifier = "orvelle";
    int processIdentifier = 500;
    std::vector<RunningProgram> instances{{.processIdentifier = 500}};
    bool hasLoginService = true;
    long loginStatus = 3; ///< the system does not find a program that was never registered
    bool mayRegisterLogin = true;
    bool loginNeedsApproval = false; ///< the user has forbidden the program to start at login before
    bool reducesMotion = false;
    std::map<std::string, double> defaults{};       ///< the program's own settings that the system keeps
    std::map<std::string, std::string> fontFiles{}; ///< paths, by "monospaced" and "rounded"
    std::set<std::string> symbols{"cpu", "network"};
    double symbolWidth = 1.5; ///< of every symbol, a multiple of its point size
    double symbolHeight = 1;
    /// Called while a menu is open. It may choose an entry.
    std::function<void()> whileMenuIsOpen{};
};

/// A status item as the user and the system see it.
struct StatusItemState {
    double length = 0;
    bool hasMenu = false;
    std::string identifier{};
    std::string accessibilityLabel{};
    unsigned long long actionMask = 0;
    std::string action{};
    bool hasTarget = false;
    std::size_t subviewCount = 0;
    std::set<std::string> pinnedEdges{}; ///< of the first subview
    bool translatesAutoresizing = true;  ///< the first subview
    bool needsDisplay = false;           ///< the first subview

    bool operator==(const StatusItemState&) const = default;
};

struct PopoverState {
    bool isShown = false;
    double width = 0;
    double height = 0;
    long behavior = 0;
    bool animates = false;
    bool hasContent = false;
    bool showsContent = false;      ///< that Qt draws something in it
    std::string anchorIdentifier{}; ///< of the button that it was shown at last
    double anchorWidth = 0;         ///< of the rectangle in it
    double anchorHeight = 0;
    unsigned long edge = 0;
    bool isKey = false;
    bool contentTakesKeys = false;
};

struct MenuEntryState {
    std::string title{}; ///< empty for a separator
    std::string keyEquivalent{};
    bool hasTarget = false;

    bool operator==(const MenuEntryState&) const = default;
};

/// A window that the program made for itself.
struct WindowState {
    double width = 0;
    double height = 0;
    unsigned long styleMask = 0;
    unsigned long backing = 0;
    bool isDeferred = true;
    std::string title{};
    bool isTitlebarTransparent = false;
    long titleVisibility = -1;
    bool isMovableByBackground = false;
    bool isReleasedWhenClosed = true;
    std::string appearance{};
    double backgroundWhite = -1;
    double backgroundAlpha = -1;
    std::string autosaveName{};
    bool isCentered = false;
    std::array<double, 4> contentFrame{}; ///< left, bottom, width and height, in the window
    bool showsContent = false;            ///< that Qt draws something in it
    bool isVisible = false;
    bool isMiniaturized = false;
    bool isKey = false;
    bool contentTakesKeys = false;
    int timesBroughtForward = 0;
};

/// Pixels that were drawn, one word of alpha, red, green and blue each.
struct Drawing {
    std::size_t width = 0; ///< pixels
    std::size_t height = 0;
    double widthInPoints = 0;
    double heightInPoints = 0;
    std::vector<std::uint32_t> pixels{};
};

enum class MouseButton { left, right };

class Desktop {
public:
    Script script{};
    bool isActive = false; ///< whether the program is the active one, which alone gets keys and hovering
    bool isHidden = false; ///< with all its windows

    /// Everything that can fail, in order.
    [[nodiscard]] const std::vector<std::string>& calls() const { return m_calls; }
    /// What the program did that a user notices, in order.
    std::vector<std::string> deeds{};
    /// The last symbol that was drawn: its size and weight in the system's terms.
    double symbolPointSize = 0;
    double symbolWeight = -1;

    /// Everything that a real system would have punished or that no documentation allows.
    [[nodiscard]] const std::vector<std::string>& complaints() const { return m_complaints; }
    /// How many objects of each class have not been given back.
    [[nodiscard]] std::map<std::string, std::size_t> live() const;

    /// The call of this number, counted from 0, fails.
    void failCall(std::size_t number) { m_failingCall = number; }
    /// Every call of this name fails.
    void failCallsTo(std::string name) { m_failingName = std::move(name); }

    // For the simulated calls.
    /// Writes the call down; false when it is to fail.
    [[nodiscard]] bool arrives(std::string call);
    void expect(bool isTrue, const std::string& otherwise);
    void lend(const void* object, std::string className) { m_lent[object] = {std::move(className), 1, true}; }
    /// The object belongs to the system from now on and need not be released.
    void keep(const void* object) { m_lent[object].isCounted = false; }
    void addReference(const void* object);
    /// Whether that was the last reference.
    [[nodiscard]] bool dropReference(const void* object);

private:
    struct Lent {
        std::string className{};
        std::size_t references = 0;
        bool isCounted = false;
    };

    std::vector<std::string> m_calls{};
    std::vector<std::string> m_complaints{};
    std::optional<std::size_t> m_failingCall{};
    std::optional<std::string> m_failingName{};
    std::map<const void*, Lent> m_lent{};
};

/// The one desktop of the test process.
[[nodiscard]] Desktop& desktop();
/// A fresh one takes its place.
void startDesktop();

// What the user does.
/// The mouse goes down on an item of the menu bar.
void press(std::size_t item, MouseButton button);
/// The mouse goes up there.
void release(std::size_t item, MouseButton button, bool holdsControl = false);
/// Both.
void click(std::size_t item, MouseButton button, bool holdsControl = false);
/// In a window of another program, which becomes the active one.
void clickElsewhere();
/// The user brings another program to the front without the mouse.
void activateOtherProgram();
/// And this one.
void activateByTheUser();
/// Goes to the view that has the keyboard, and from there on.
void pressEscape();
/// Drags an item of the menu bar to the right of the others, with the key for commands held.
void dragToTheRightEnd(std::size_t item);
/// Chooses from the menu that is open. Only while one is.
void chooseFromMenu(std::size_t entry);
/// Chooses in the system's settings whether things move.
void chooseReducedMotion(bool isReduced);
/// Opens the program once more while it runs.
void openProgramAgain();
void closeWindow(std::size_t window);
void minimizeWindow(std::size_t window);

// What only the system does.
/// Handles what the program asked for while it handled no event: makes it the active one.
void letTheSystemRespond();
/// The item's button sends its action although no event is being handled.
void sendActionWithoutEvent(std::size_t item);
/// Has the item drawn when it needs it; nothing when it does not or nothing was drawn.
[[nodiscard]] std::optional<Drawing> draw(std::size_t item);
void finishFading();
/// The item moves to a screen with another number of pixels a point.
void changeScreen(std::size_t item, double backingScale);
/// The menu bar becomes dark or light, with the picture behind it for instance.
void changeMenuBar(bool isDarkNow);
/// Takes the identifier of the item's button away.
void loseIdentifier(std::size_t item);

// What there is.
/// From left to right. Where an item is meant by its number, it is counted so.
[[nodiscard]] std::vector<StatusItemState> statusItems();
/// Those whose button knows which view a click at the middle and at the corners goes to: always itself?
[[nodiscard]] bool clicksReachTheButton(std::size_t item);
[[nodiscard]] std::vector<PopoverState> popovers();
/// The entries of the open menu; nothing while none is.
[[nodiscard]] std::optional<std::vector<MenuEntryState>> openMenu();
[[nodiscard]] std::vector<WindowState> windows();

} // namespace orvelle::simulated
