#!/bin/bash
# notarize.sh IMAGE: signs a disk image and has Apple notarise it, so that other Macs open it without a question.
#
# ORVELLE_SIGNING_IDENTITY is as in finish_bundle.sh. ORVELLE_NOTARY_KEY is the file of a key for App Store Connect,
# ORVELLE_NOTARY_KEY_ID its name and ORVELLE_NOTARY_ISSUER that of its owner. A step whose values are not set is left out.
set -euo pipefail
image=$1
if [ -z "${ORVELLE_SIGNING_IDENTITY:-}" ]; then
  echo "notarize: ORVELLE_SIGNING_IDENTITY is not set, so $(basename "$image") is not signed"
  exit 0
fi
codesign --force --sign "$ORVELLE_SIGNING_IDENTITY" --timestamp "$image"
if [ -z "${ORVELLE_NOTARY_KEY:-}" ] || [ -z "${ORVELLE_NOTARY_KEY_ID:-}" ] || [ -z "${ORVELLE_NOTARY_ISSUER:-}" ]; then
  echo "notarize: the values of ORVELLE_NOTARY_... are not all set, so $(basename "$image") is not notarised"
  exit 0
fi
xcrun notarytool submit "$image" --key "$ORVELLE_NOTARY_KEY" --key-id "$ORVELLE_NOTARY_KEY_ID" \
  --issuer "$ORVELLE_NOTARY_ISSUER" --wait
# Fails when Apple has refused the image, which the submission alone does not.
xcrun stapler staple "$image"
