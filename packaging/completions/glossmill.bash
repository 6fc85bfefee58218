# Completes glossmill in bash.
_glossmill() {
  COMPREPLY=()
  if [[ ${COMP_WORDS[COMP_CWORD]} == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W '-h --help --version' -- "${COMP_WORDS[COMP_CWORD]}")
  else
    compopt -o dirnames
  fi
}

complete -F _glossmill glossmill
