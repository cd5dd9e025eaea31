# A made-up home for `run` to start the program in. Sourced after common.sh.

# makeDemoHome: writes a home into a temporary folder of its own, `demoFolder`.
makeDemoHome() {
  demoFolder=$(mktemp -d "${TMPDIR:-/tmp}/quillmere-demo.XXXXXX") || return 1
  build/release/demo/demo_home "$demoFolder" || return 1
  # The display's access file has its usual place in the real home.
  if [ -n "${DISPLAY-}" ] && [ -z "${XAUTHORITY-}" ] && [ -r "${HOME-}/.Xauthority" ]; then
    export XAUTHORITY=$HOME/.Xauthority
  fi
  export HOME=$demoFolder XDG_CONFIG_HOME=$demoFolder/.config \
    XDG_DATA_HOME=$demoFolder/.local/share XDG_CACHE_HOME=$demoFolder/.cache \
    XDG_STATE_HOME=$demoFolder/.local/state
  # Where the desktop has none, Qt would make one beside our folder.
  if [ -z "${XDG_RUNTIME_DIR-}" ]; then
    export XDG_RUNTIME_DIR=$demoFolder/.runtime
    mkdir -m 700 "$XDG_RUNTIME_DIR" || return 1
  fi
  cd "$demoFolder" || return 1
}

removeDemoHome() {
  case ${demoFolder-} in
    */quillmere-demo.??????) rm -rf -- "$demoFolder" ;;
  esac
}

explainDemo() {
  echo "This is Quillmere Direct in a made-up home, with a made-up Homebrew that answers and changes" \
    "only itself. Nothing outside is touched."
  echo "Its Homebrew prefix, for when the window asks for a folder: $demoFolder/homebrew"
  echo "The folder $demoFolder is removed when the window is closed."
}
