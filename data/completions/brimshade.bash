# Completions of brimshade(1) for bash.
_brimshade() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} first=${COMP_WORDS[1]} words
  case $before in
    --desktop | --defaults | --state | --script)
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
    --screen) words=$(cd /sys/class/drm 2>/dev/null && printf '%s\n' card*-* | sed 's/^card[0-9]*-//') ;;
    --notch) words='drawn none' ;;
    --scale) words='1 2 3 4' ;;
    *)
      case $first in
        --toggle | --settings | --quit | --help | --version) [ "$COMP_CWORD" -eq 1 ] || return ;;
      esac
      words='--session --screen --notch --toggle --settings --quit --desktop --no-tray --tray --defaults --state --script
        --window --real-time --scale --debug --help --version'
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _brimshade brimshade
