# Completes glossmill in fish.
complete -c glossmill -f -a '(__fish_complete_directories)'
complete -c glossmill -s h -l help -d 'Print what the program is called with'
complete -c glossmill -l rules -x -a 'classic xcode' -d 'Read projects by these rules'
complete -c glossmill -l version -d 'Print the version'
