# Completes the options of orvelle-probe in fish.
complete -c orvelle-probe -f
complete -c orvelle-probe -l root -x -a '(__fish_complete_directories)' -d 'Read a recorded machine'
complete -c orvelle-probe -l step -x -d 'Seconds between two samples of a recorded machine'
complete -c orvelle-probe -l cycles -x -d 'How many samples to take'
complete -c orvelle-probe -l modules -d 'Print the modules'
complete -c orvelle-probe -s h -l help -d 'Print the options'
complete -c orvelle-probe -s v -l version -d 'Print the version'
