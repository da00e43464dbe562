# Functions for the recipes of the packages: the version, the time of the commit, a clean copy of the tree. To be sourced after
# tools/setup.sh; `top` is the folder of the tree.

# The version stands in CMakeLists.txt and nowhere else.
project_version() {
  sed -n 's/^project(KrasPret VERSION \([0-9.]*\).*/\1/p' "$top/CMakeLists.txt"
}

# When the last commit was made, in seconds since 1970: the one time that a package may hold.
commit_time() {
  git -C "$top" log -1 --format=%ct
}

# clean_tree FOLDER: the tree of the last commit, with its time on every file.
clean_tree() {
  mkdir -p "$1"
  git -C "$top" archive --format=tar HEAD | tar -x -C "$1"
}

# The changelog of the package: one entry for the version, with its points in the words of CHANGELOG.md.
debian_changelog() {
  local version
  version=$(project_version)
  printf 'kraspret (%s) unstable; urgency=medium\n\n' "$version"
  awk -v version="$version" '
    /^## / { in_version = index($0, "## " version) == 1; next }
    in_version && /^- / { print "  * " substr($0, 3); next }
    in_version && /^  [^ ]/ { print "    " substr($0, 3) }
  ' "$top/CHANGELOG.md" | fold -s -w 78 | sed 's/^\([^ ]\)/    \1/; s/ *$//'
  printf '\n -- The KrasPret founders <founders@kraspret.invalid>  %s\n' "$(LC_ALL=C date -u -R -d "@$(commit_time)")"
}
