#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Torvi developers
# SPDX-License-Identifier: MIT

# The real gcloud (@GCLOUD@), if the environment is still that of the test in @HOME@; keeps a record
# of its runs there.
echo "$*" >>"@HOME@/runs"
case "$HOME:$CLOUDSDK_CONFIG:$HTTPS_PROXY:$REQUESTS_CA_BUNDLE" in
"@HOME@:@HOME@/"*:http://127.0.0.1:*:/*) exec "@GCLOUD@" "$@" ;;
esac
echo "gcloud was started without the environment of the test" >&2
exit 70
