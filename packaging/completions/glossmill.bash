# Completes glossmill in bash.
_glossmill() {
  COMPREPLY=()
  if [[ ${COMP_WORDS[COMP_CWORD - 1]} == --rules ]]; then
    mapfile -t COMPREPLY < <(compgen -W 'classic xcode' -- "${COMP_WORDS[COMP_CWORD]}")
  elif [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '-h --help --rules --version' -- "${COMP_WORDS[COMP_CWORD]}")
  else
    compopt -o dirnames
  fi
}

complete -F _glossmill glossmill
