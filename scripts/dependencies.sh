# Sourced by run, test and .ci/run: install_missing <group>... sees to it that the Debian packages
# of these groups (scripts/packages.txt) are there. It never asks, and never removes a package.

packages_of()
{
    awk -v groups=" $* " 'index(groups, " " $1 " ") { print $2 }' scripts/packages.txt | sort
}

install_missing()
{
    local packages missing
    if ! command -v dpkg-query >/dev/null; then
        echo "Not a Debian system: the counterparts of scripts/packages.txt must be there." >&2
        return 0
    fi
    packages=$(packages_of "$@")
    # shellcheck disable=SC2086
    missing=$(comm -23 <(echo "$packages") \
        <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' $packages 2>/dev/null |
            sed -n 's/^installed //p' | sort -u))
    [[ -n $missing ]] || return 0
    missing=${missing//$'\n'/ }

    local as_root=()
    if [[ $(id -u) != 0 ]]; then
        as_root=(sudo -n)
        if ! sudo -n true 2>/dev/null; then
            printf 'These packages are missing. Install them and start again:\n  sudo apt-get install --no-install-recommends %s\n' \
                "$missing" >&2
            return 1
        fi
    fi
    echo "Installing $missing"
    local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300
        -o Acquire::Retries=3)
    "${apt[@]}" update </dev/null
    # shellcheck disable=SC2086
    if ! "${apt[@]}" install -y --no-remove --no-install-recommends $missing </dev/null; then
        echo "Some packages could not be installed, or only by removing others: $missing" >&2
        return 1
    fi
}
