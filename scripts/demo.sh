# What `run` does on made-up homes. Sourced with `demoHomeTool` and `tourProgram` set, the programs of
# demo/.


# makeDemoHome: writes a home into a temporary folder of its own, `demoFolder`.
makeDemoHome() {
  demoFolder=$(mktemp -d "${TMPDIR:-/tmp}/quillmere-demo.XXXXXX") || return 1
  "$demoHomeTool" "$demoFolder" || return 1
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
  echo "Its catalog waits in Browse under Load Cached; Fetch would download the real one."
  echo "The folder $demoFolder is removed when the window is closed."
}

# takeTour FOLDER CHAPTER…: draws on no display at all, which looks the same everywhere. The awkward
# chapter has a second half at twice the scale, which a program takes for all its life.
takeTour() {
  local folder=$1 runtime
  shift
  runtime=$(mktemp -d "${TMPDIR:-/tmp}/quillmere-tour.XXXXXX") || return 1
  echo "Taking pictures; this takes some minutes."
  drawWithoutDisplay "$runtime" "$tourProgram" "$@" "$folder"
  local status=$?
  if [ "$status" -eq 0 ] && [[ " $* " = *" awkward "* ]]; then
    QT_SCALE_FACTOR=2 drawWithoutDisplay "$runtime" "$tourProgram" scaled "$folder"
    status=$?
  fi
  rm -rf -- "$runtime"
  [ "$status" -eq 0 ] && echo "The pictures are in $folder."
  return "$status"
}

drawWithoutDisplay() {
  local runtime=$1
  shift
  env -u QT_SCREEN_SCALE_FACTORS -u QT_QPA_PLATFORMTHEME LC_ALL=C.UTF-8 TZ=UTC \
    XDG_RUNTIME_DIR="$runtime" QT_QPA_PLATFORM=offscreen QT_QUICK_BACKEND=software "$@"
}
