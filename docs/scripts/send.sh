#!/bin/sh
# Sends a text to the topic of files through the Quillon that runs: send.sh TEXT
quillon() {
    method=$1 && shift
    gdbus call --session --timeout 600 --dest dev.vostrel.quillon \
        --object-path /dev/vostrel/quillon --method "dev.vostrel.quillon.$method" "$@"
}
quillon Status | grep -q '"ready":true' || { echo "Quillon is not ready to send" >&2; exit 1; }
quillon Send '[]' "$1" '{"topic": <"files">}'
