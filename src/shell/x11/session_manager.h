#pragma once

namespace orvelle {

/// Lets the program go on, and say so on standard error, when the session manager breaks off. libICE, over
/// which Qt talks to it, would end the process. A session that ends as well closes the display, which ends
/// the program. Does nothing without a session manager. To be called before the application object exists.
void outliveSessionManager();

} // namespace orvelle
