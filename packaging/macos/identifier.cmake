# The identifier of Orvelle.app, which is also the domain of its user defaults.
set(ORVELLE_BUNDLE_IDENTIFIER orvelle.Orvelle)
