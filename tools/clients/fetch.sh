# Fetches and unpacks Debian 12 source packages for the client builds; sourced by run.sh.
# Needs: curl (or wget), xz, sha256sum; dpkg-source where present (else tar and patch).

debian_mirror=${LORB_DEBIAN_MIRROR:-http://deb.debian.org/debian}
sources_index_url=$debian_mirror/dists/bookworm/main/source/Sources.xz

# download URL FILE: one attempt with retries; no partial file is left behind.
download() {
  rm -f "$2.part"
  if command -v curl >/dev/null 2>&1; then
    curl -fsSL --retry 2 --connect-timeout 20 --max-time 300 -o "$2.part" "$1"
  else
    wget -q --tries=3 --timeout=60 -O "$2.part" "$1"
  fi || { rm -f "$2.part"; return 1; }
  mv "$2.part" "$2"
}

# fetch_sources_index CACHE [refresh]: the unpacked bookworm Sources index, downloaded once and
# kept; `refresh` downloads it again (a point release may have replaced a package since).
fetch_sources_index() {
  if [ ! -s "$1/Sources" ] || [ "${2:-}" = refresh ]; then
    download "$sources_index_url" "$1/Sources.xz" || return 1
    xz -dc "$1/Sources.xz" > "$1/Sources.tmp" && mv "$1/Sources.tmp" "$1/Sources" || return 1
  fi
}

# source_stanza CACHE PACKAGE: the package's paragraph of the index (the first, if several).
source_stanza() {
  awk -v want="Package: $2" 'BEGIN { RS = ""; FS = "\n" } $1 == want { print; exit }' "$1/Sources"
}

# stanza_field FIELD: a one-line field of the paragraph on stdin.
stanza_field() {
  sed -n "s/^$1: //p" | head -n 1
}

# stanza_files: "sha256 size name" for each file of the paragraph on stdin.
stanza_files() {
  awk '/^Checksums-Sha256:/ { on = 1; next } /^[^ ]/ { on = 0 } on && NF == 3 { print }'
}

# fetch_package CACHE PACKAGE: downloads the package's .dsc and tarballs into CACHE (keeping
# files already there whose sha256 matches) and sets package_version and package_dsc.
fetch_package() {
  local cache=$1 name=$2 stanza dir sum _size file
  stanza=$(source_stanza "$cache" "$name")
  [ -n "$stanza" ] || { echo "$name: not in the bookworm Sources index" >&2; return 1; }
  package_version=$(echo "$stanza" | stanza_field Version)
  dir=$(echo "$stanza" | stanza_field Directory)
  package_dsc=
  while read -r sum _size file; do
    case "$file" in *.dsc) package_dsc=$cache/$file ;; esac
    if [ -f "$cache/$file" ] && echo "$sum  $cache/$file" | sha256sum -c --status; then
      continue
    fi
    download "$debian_mirror/$dir/$file" "$cache/$file" || { echo "$name: cannot download $file" >&2; return 1; }
    if ! echo "$sum  $cache/$file" | sha256sum -c --status; then
      echo "$name: $file does not match its sha256 in the index" >&2
      rm -f "$cache/$file"
      return 1
    fi
  done <<FILES
$(echo "$stanza" | stanza_files)
FILES
  [ -n "$package_dsc" ]
}

# unpack_package DSC DEST: the source tree with Debian's patches applied, in a fresh DEST.
unpack_package() {
  local dsc=$1 dest=$2 cache tarball patch
  rm -rf "$dest"
  mkdir -p "$(dirname "$dest")"
  if command -v dpkg-source >/dev/null 2>&1; then
    # The checksums were checked against the index; --no-copy leaves the tarballs in the cache.
    dpkg-source --no-check --no-copy -x "$dsc" "$dest" >/dev/null
    return
  fi
  # Without dpkg-source: the upstream tarball, then debian/ and the patches its series lists.
  cache=$(dirname "$dsc")
  mkdir -p "$dest"
  for tarball in $(sed -n 's/^ [0-9a-f]\{64\} [0-9]* \(.*\.orig\.tar\..*\)$/\1/p' "$dsc"); do
    tar -xf "$cache/$tarball" -C "$dest" --strip-components=1 || return 1
  done
  for tarball in $(sed -n 's/^ [0-9a-f]\{64\} [0-9]* \(.*\.debian\.tar\..*\)$/\1/p' "$dsc"); do
    tar -xf "$cache/$tarball" -C "$dest" || return 1
  done
  if [ -f "$dest/debian/patches/series" ]; then
    for patch in $(sed 's/#.*//' "$dest/debian/patches/series"); do
      patch -s --no-backup-if-mismatch -p1 -d "$dest" < "$dest/debian/patches/$patch" || return 1
    done
  fi
}
