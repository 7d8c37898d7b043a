# shellcheck shell=bash
# The package as users get it: made, read by what the distribution has for that, unpacked, and used.

stage_package() {
  build_preset bench # the same programs; its benchmarks are not installed
  local work=build/package root=build/package/root package
  rm -rf "$work"
  mkdir -p "$work"
  cpack --config build/bench/CPackConfig.cmake -B "$work" >"$work/cpack.log" 2>&1 || {
    cat "$work/cpack.log"
    return 1
  }
  package=$(echo "$work"/*.deb)
  dpkg-deb --extract "$package" "$root"
  without_remark left_out "$root" "$work/staged"
  without_remark lintian --allow-root --display-info --pedantic --fail-on error,warning,info,pedantic "$package"
  check_descriptions "$root/usr/share" org.tarnwick.tarnwick
  local page
  for page in "$root"/usr/share/man/man1/*.gz; do
    without_remark mandoc -T lint "$page"
    without_remark groff -ww -man -Tutf8 -z <(zcat "$page")
  done
  use_package "$root"
}

# What an installation by hand has and the package has not.
left_out() {
  DESTDIR=$PWD/$2 cmake --install build/bench --prefix /usr >/dev/null || return
  comm -13 <(cd "$1" && find . -type f | sort) <(cd "$2" && find . -type f | sort)
}

# For the desktop: the program, its description for software centres, its types of files.
check_descriptions() {
  local share=$1 id=$2 words=/usr/share/mime/packages/freedesktop.org.xml
  without_remark desktop-file-validate "$share/applications/$id.desktop"
  appstream_is_content "$share/metainfo/$id.metainfo.xml"
  sed -n '/^<!DOCTYPE mime-info \[/,/^\]>/p' $words | sed '1d;$d' >build/package/mime-info.dtd
  without_remark xmllint --noout --dtdvalid build/package/mime-info.dtd "$share/mime/packages/$id.xml"
  without_remark env XDG_DATA_DIRS="$PWD/$share" update-mime-database "$PWD/$share/mime"
  without_remark update-desktop-database "$share/applications"
}

# It tells its success, and the number of remarks behind that.
appstream_is_content() {
  local said
  said=$(appstreamcli validate --pedantic --no-net --no-color "$1") || true
  [[ $said = *"Validation was successful." ]] || {
    say "$said"
    return 1
  }
  count 1 0
}

# Runs what is to say nothing.
without_remark() {
  local said status=0
  said=$(LC_ALL=C.UTF-8 "$@" 2>&1) || status=$?
  if [ "$status" -ne 0 ] || [ -n "$said" ]; then
    printf '%s:\n%s\n' "$*" "$said"
    return 1
  fi
  count 1 0
}

use_package() {
  local log=build/package/tests.log
  if ! /usr/bin/python3 -B packaging/installed_test.py "$1" >"$log" 2>&1; then
    cat "$log"
    return 1
  fi
  count "$(sed -n 's/^Ran \([0-9]*\) tests.*/\1/p' "$log")" 0
}
