# The toolkit for Windows, from Debian's own source package of it: static, and only what the program uses. To be sourced after
# tools/setup.sh. It is kept in a cache folder under a name made of all that it depends on, so it is built once.

toolkit_version() {
  dpkg-query -W -f '${source:Version}' qt6-base-dev
}

# What the toolkit is configured with. The letters come from the libraries in its own source, since Debian has none for Windows.
toolkit_options=(
  -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF -DCMAKE_INSTALL_PREFIX=/toolkit
  -DQT_HOST_PATH=/usr -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DINPUT_opengl=no
)
for feature in network sql dbus opengl vulkan icu glib zstd tabletevent xml concurrent \
  system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2; do
  toolkit_options+=("-DFEATURE_$feature=OFF")
done

cache_folder() {
  printf '%s\n' "${KRASPRET_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/kraspret}"
}

# The folder of the finished toolkit, which may not be there yet.
toolkit_folder() {
  local key
  key=$({ toolkit_version; x86_64-w64-mingw32-g++-posix --version; printf '%s\n' "${toolkit_options[@]}"; } | sha256sum)
  printf '%s/toolkit-%s\n' "$(cache_folder)" "${key:0:16}"
}

# fetch_toolkit FOLDER: the source package, unpacked there. Where the system's package lists know no sources, lists of our own do.
fetch_toolkit() {
  local folder=$1 file name
  local apt=(apt-get -q -o "Dir::Etc::sourceparts=$folder/parts" -o Dir::Etc::sourcelist=/dev/null
    -o "Dir::State::lists=$folder/lists" -o "Dir::Cache=$folder/cache" -o APT::Sandbox::User="$(id -un)")
  mkdir -p "$folder/parts" "$folder/lists/partial" "$folder/cache/archives/partial"
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
    [ -f "$file" ] || continue
    name=$(basename "$file")
    case $name in
      *.sources) sed 's/^Types:.*/Types: deb-src/' "$file" >"$folder/parts/$name" ;;
      *) sed -n 's/^deb /deb-src /p' "$file" >"$folder/parts/${name%.list}.list" ;;
    esac
  done
  "${apt[@]}" update >"$folder/fetch.log" 2>&1 || say "not all lists of sources could be read; trying with the others"
  (cd "$folder" && "${apt[@]}" source "qt6-base=$(toolkit_version)" >>fetch.log 2>&1) ||
    { tail -n 12 "$folder/fetch.log" >&2; die "The source of the toolkit could not be fetched."; }
  mv "$folder"/qt6-base-*/ "$folder/source"
}

# Gives the folder of the toolkit on standard output; makes it first if it is not there.
need_toolkit() {
  local finished work flags
  finished=$(toolkit_folder)
  if [ ! -d "$finished" ]; then
    work=$finished.work
    flags="-ffile-prefix-map=$work=. -ffunction-sections -fdata-sections"
    rm -rf "$work"
    mkdir -p "$work"
    say "fetching the toolkit's source"
    fetch_toolkit "$work"
    say "building the toolkit for Windows; this takes a while, and is kept in $(cache_folder)"
    { cmake -S "$work/source" -B "$work/build" -G Ninja "${toolkit_options[@]}" \
        -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
        -DCMAKE_TOOLCHAIN_FILE="$top/packaging/windows/toolchain.cmake" "-DCMAKE_C_FLAGS=$flags" "-DCMAKE_CXX_FLAGS=$flags" &&
      cmake --build "$work/build" && cmake --install "$work/build" --prefix "$work/finished"; } >"$work/build.log" 2>&1 ||
      { tail -n 30 "$work/build.log" >&2; die "The toolkit could not be built; all of it stands in $work/build.log"; }
    cp "$work/source/debian/copyright" "$work/finished/copyright"
    mv "$work/finished" "$finished"
    rm -rf "$work"
  fi
  printf '%s\n' "$finished"
}

# configure_windows SOURCE BUILD [OPTION...]: lays a build folder of the program for Windows.
configure_windows() {
  local source=$1 folder=$2 toolkit flags
  shift 2
  toolkit=$(need_toolkit)
  flags="-ffile-prefix-map=$source=. -ffile-prefix-map=$folder=. -ffunction-sections -fdata-sections"
  cmake -S "$source" -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_UNITY_BUILD=ON "-DCMAKE_CXX_FLAGS=$flags" \
    -DCMAKE_EXE_LINKER_FLAGS=-static \
    -DCMAKE_TOOLCHAIN_FILE="$top/packaging/windows/toolchain.cmake" "-DKRASPRET_TOOLKIT=$toolkit" "-DCMAKE_PREFIX_PATH=$toolkit" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake" \
    -DKRASPRET_TOOLKIT_DUTCH=/usr/share/qt6/translations/qtbase_nl.qm "$@"
}
