# SPDX-FileCopyrightText: 2026 The Tessarin Settings authors
# SPDX-License-Identifier: GPL-3.0-or-later

# A print scheduler of the test's own, to be sourced: on loopback, with its own configuration, directories and port,
# gone when the test ends, whatever happens.
#
#   start_scheduler        makes $scheduler (its folder) and sets CUPS_SERVER
#   stop_scheduler
#   $scheduler/ServerBin/filter takes filters, $scheduler/received is where they may write

scheduler=
scheduler_pid=
PATH=$PATH:/usr/sbin:/sbin # where the scheduler and its tools are, which is not on everybody's path

free_port() {
    local port
    for port in $(shuf -i 20000-40000 -n 50); do
        if ! (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
            echo "$port"
            return
        fi
    done
    echo "no free port" >&2
    return 1
}

start_scheduler() {
    scheduler=$(mktemp -d /tmp/tessarin-cups.XXXXXX)
    local port folder
    port=$(free_port)
    chmod 755 "$scheduler"
    for folder in ServerRoot ServerRoot/ppd ServerRoot/ssl State State/certs Cache Spool Spool/tmp Log ServerBin received; do
        mkdir -p "$scheduler/$folder"
    done
    # The system's programs, and filters of the test's own beside them. Some backends only root may read, and no test
    # needs them.
    cp -r /usr/lib/cups/. "$scheduler/ServerBin/" 2>"$scheduler/Log/not_copied" || true
    cat >"$scheduler/ServerRoot/cups-files.conf" <<END
ServerRoot $scheduler/ServerRoot
ServerBin $scheduler/ServerBin
DataDir /usr/share/cups
StateDir $scheduler/State
CacheDir $scheduler/Cache
RequestRoot $scheduler/Spool
TempDir $scheduler/Spool/tmp
AccessLog $scheduler/Log/access_log
ErrorLog $scheduler/Log/error_log
PageLog $scheduler/Log/page_log
FileDevice Yes
Sandboxing relaxed
SystemGroup root
END
    if [ "$(id -u)" != 0 ]; then
        printf 'User %s\nGroup %s\n' "$(id -un)" "$(id -gn)" >>"$scheduler/ServerRoot/cups-files.conf"
    else
        # Filters run as another user; what they write must be theirs.
        chown -R lp:lp "$scheduler/received" "$scheduler/Spool" "$scheduler/Cache"
    fi
    cat >"$scheduler/ServerRoot/cupsd.conf" <<END
Listen 127.0.0.1:$port
LogLevel debug
MaxLogSize 0
Browsing Off
WebInterface No
DefaultAuthType None
JobPrivateAccess all
JobPrivateValues none
PreserveJobHistory Yes
<Location />
  Order allow,deny
  Allow 127.0.0.1
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
    cupsd -f -c "$scheduler/ServerRoot/cupsd.conf" -s "$scheduler/ServerRoot/cups-files.conf" \
        >"$scheduler/Log/cupsd.out" 2>&1 &
    scheduler_pid=$!
    export CUPS_SERVER=127.0.0.1:$port
    local i
    for ((i = 0; i < 100; i++)); do
        [ "$(LC_ALL=C lpstat -r 2>/dev/null)" = 'scheduler is running' ] && return
        kill -0 "$scheduler_pid" 2>/dev/null || break
        sleep 0.1
    done
    echo "the scheduler did not start:" >&2
    cat "$scheduler/Log/cupsd.out" "$scheduler/Log/error_log" >&2 || true
    return 1
}

stop_scheduler() {
    if [ -n "$scheduler_pid" ]; then
        kill "$scheduler_pid" 2>/dev/null || true
        wait "$scheduler_pid" 2>/dev/null || true
        scheduler_pid=
    fi
    [ -n "$scheduler" ] && rm -rf "$scheduler"
    scheduler=
}

# wait_for_job <number>: until the job has ended; fails when it did not complete.
wait_for_job() {
    local i
    for ((i = 0; i < 300; i++)); do
        lpstat -W completed -o 2>/dev/null | grep -q -- "-$1 " && return
        sleep 0.1
    done
    echo "job $1 did not complete:" >&2
    tail -n 60 "$scheduler/Log/error_log" >&2
    return 1
}
