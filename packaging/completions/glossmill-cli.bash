# Completes glossmill-cli in bash; made from its commands.
# shellcheck shell=bash disable=SC2034,SC2207

# _glossmill_cli_command COMMAND: what can be typed behind it.
_glossmill_cli_command() {
  commands='init scan status check accept save export import fill set add-language prune history restore recover'
  case $1 in
    init)
      options=(-h --help -q --quiet --log -v --verbose)
      values=()
      arguments=(directory)
      ;;
    scan)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --json)
      values=('--rules=one:classic|xcode' '--package=file')
      arguments=(directory)
      ;;
    status)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table -l --language --missing --json)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '-l=language' '--language=language')
      arguments=(directory)
      ;;
    check)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table -l --language --checks --fail-on --format -o --output --baseline --write-baseline)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '-l=language' '--language=language' '--checks=list:missing|format|not-kept|malformed|duplicate|white-space|invisible|punctuation|identical|unused|inconsistent|not-literal' '--fail-on=one:error|warning|info' '--format=one:text|json|sarif|junit|github' '-o=file' '--output=file' '--baseline=file' '--write-baseline=file')
      arguments=(directory)
      ;;
    accept)
      options=(-h --help -q --quiet --log -v --verbose --rules --package -l --language --table --check -n --dry-run)
      values=('--rules=one:classic|xcode' '--package=file' '-l=language' '--language=language' '--table=other' '--check=other')
      arguments=(directory other)
      ;;
    save)
      options=(-h --help -q --quiet --log -v --verbose --rules --package -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory)
      ;;
    export)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table -l --language --format --bom -u --untranslated -o --output -n --dry-run)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '-l=language' '--language=language' '--format=one:text|po|csv|tsv|xliff|xliff2|xcloc' '-o=file' '--output=file')
      arguments=(directory)
      ;;
    import)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table -l --language --format --only --use-fuzzy -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '-l=language' '--language=language' '--format=one:text|po|csv|tsv|xliff|xliff2|xcloc' '--only=one:new|changed' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory file)
      ;;
    fill)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table -l --language -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '-l=language' '--language=language' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory)
      ;;
    set)
      options=(-h --help -q --quiet --log -v --verbose --rules --package -l --language --table -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '-l=language' '--language=language' '--table=other' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory other other)
      ;;
    add-language)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --table --save -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '--table=other' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory language)
      ;;
    prune)
      options=(-h --help -q --quiet --log -v --verbose --rules --package -l --language --table -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '-l=language' '--language=language' '--table=other' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory)
      ;;
    history)
      options=(-h --help -q --quiet --log -v --verbose)
      values=()
      arguments=(directory)
      ;;
    restore)
      options=(-h --help -q --quiet --log -v --verbose --from --finish -n --dry-run --json --allow --max-dropped --wait)
      values=('--from=other' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory file)
      ;;
    recover)
      options=(-h --help -q --quiet --log -v --verbose --rules --package --apply --discard -n --dry-run --json --allow --max-dropped --wait)
      values=('--rules=one:classic|xcode' '--package=file' '--allow=one:incomplete|outside|changed|no-copy' '--max-dropped=other' '--wait=other')
      arguments=(directory)
      ;;
    *)
      options=(--version -h --help -q --quiet --log -v --verbose)
      values=()
      arguments=()
      ;;
  esac
}

_glossmill_cli_languages() {
  local word directory
  for word in "${COMP_WORDS[@]:1}"; do
    directory=${word/#\~\//$HOME/}
    [[ -d $directory ]] || continue
    find "$directory" -maxdepth 6 -type d -name '*.lproj' -prune 2>/dev/null |
      sed 's|.*/||; s|\.lproj$||; s|^English$|en|' | sort -u
    return
  done
}

# _glossmill_cli_value KIND: completes a value or an argument.
_glossmill_cli_value() {
  local words=${1#*:} chosen
  case $1 in
    one:*) COMPREPLY=($(compgen -W "${words//|/ }" -- "$current")) ;;
    list:*)
      chosen=${current%"${current##*,}"}
      COMPREPLY=($(compgen -P "$chosen" -W "${words//|/ }" -- "${current##*,}"))
      compopt -o nospace
      ;;
    language) COMPREPLY=($(compgen -W "$(_glossmill_cli_languages)" -- "$current")) ;;
    directory) compopt -o dirnames ;;
    file) compopt -o default ;;
  esac
}

# _glossmill_cli_kind OPTION: the kind of its value; fails for an option without one.
_glossmill_cli_kind() {
  local value
  for value in "${values[@]}"; do
    [[ ${value%%=*} == "$1" ]] && kind=${value#*=} && return
  done
  return 1
}

_glossmill_cli() {
  local current=${COMP_WORDS[COMP_CWORD]} at=1 position=0 kind command='' option=''
  local -a options values arguments
  COMPREPLY=()
  [[ $current == = ]] && current=
  while ((at < COMP_CWORD)) && [[ ${COMP_WORDS[at]} == -* ]]; do ((at++)); done
  ((at < COMP_CWORD)) && command=${COMP_WORDS[at]}
  _glossmill_cli_command "$command"
  for ((at++; at < COMP_CWORD; at++)); do
    if [[ ${COMP_WORDS[at]} == = ]]; then
      continue
    elif [[ $option ]]; then
      option=
    elif [[ ${COMP_WORDS[at]} == -* ]]; then
      _glossmill_cli_kind "${COMP_WORDS[at]}" && option=${COMP_WORDS[at]}
    else
      ((position++))
    fi
  done
  if [[ $option ]]; then
    _glossmill_cli_kind "$option" && _glossmill_cli_value "$kind"
  elif [[ $current == -* ]]; then
    COMPREPLY=($(compgen -W "${options[*]}" -- "$current"))
  elif [[ $command ]]; then
    ((position < ${#arguments[@]})) || position=$((${#arguments[@]} - 1))
    _glossmill_cli_value "${arguments[position]}"
  else
    COMPREPLY=($(compgen -W "$commands" -- "$current"))
  fi
}

complete -F _glossmill_cli glossmill-cli
