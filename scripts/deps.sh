# Sourced by the other scripts: installs the Debian packages the build needs
# when they are missing. Nothing is installed when everything is present.
vt_install_deps() {
  local wanted=(build-essential cmake qtbase5-dev qtbase5-dev-tools fonts-dejavu-core qttools5-dev qttools5-dev-tools "$@")
  local missing=()
  for p in "${wanted[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "installing: ${missing[*]}"
  local sudo=""
  [ "$(id -u)" -ne 0 ] && sudo="sudo"
  $sudo apt-get update -qq
  DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}
