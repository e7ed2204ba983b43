# Completions of brimshade(1) for bash.
_brimshade_names() {
  brimshade --list --json 2>/dev/null | sed -n 's/.*"name": *"\([^"]*\)".*/\1/p'
}

_brimshade() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} first=${COMP_WORDS[1]} words
  case $before in
    --desktop | --defaults | --state | --script)
      compopt -o filenames
      mapfile -t COMPREPLY < <(compgen -f -- "$word")
      return
      ;;
    --open)
      mapfile -t COMPREPLY < <(_brimshade_names | grep -i -- "^$word" | sed 's/[^A-Za-z0-9._-]/\\&/g')
      return
      ;;
    --screen) words=$(cd /sys/class/drm 2>/dev/null && printf '%s\n' card*-* | sed 's/^card[0-9]*-//') ;;
    --notch) words='drawn none' ;;
    --scale) words='1 2 3 4' ;;
    *)
      case $first in
        --toggle | --settings | --quit | --json | --help | --version) [ "$COMP_CWORD" -eq 1 ] || return ;;
      esac
      words='--session --screen --notch --toggle --settings --quit --list --json --open --desktop --no-tray --tray --defaults --state --script
        --window --real-time --scale --debug --help --version'
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -F _brimshade brimshade
