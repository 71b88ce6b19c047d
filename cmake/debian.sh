# Sourced by `run` and the scripts beside it: packages of a Debian machine.

as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else
    printf 'Root rights (or sudo) are needed for: %s\n' "$*" >&2
    return 1
  fi
}

# Installs those of the named Debian packages that are not there yet.
install() {
  local missing=() package
  command -v dpkg-query >/dev/null || { printf 'Not a Debian machine. Needed: %s\n' "$*" >&2; return 0; }
  for package in "$@"; do  # of this machine's architecture, or `name:architecture`
    dpkg-query --show --showformat='${Architecture} ${db:Status-Status}\n' "$package" 2>/dev/null |
      grep -qE "^(all|$([[ $package == *:* ]] && echo "${package#*:}" || dpkg --print-architecture)) installed" || missing+=("$package")
  done
  [ ${#missing[@]} = 0 ] && return 0
  printf '\n== Installing %s\n' "${missing[*]}"
  for package in "${missing[@]}"; do  # of another architecture, `name:architecture`
    [[ $package != *:* ]] || as_root dpkg --add-architecture "${package#*:}"
  done
  as_root apt-get update -qq || true  # a stale list of one source need not matter; the install decides
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq -o DPkg::Lock::Timeout=300 --no-install-recommends "${missing[@]}" >&2
}
