# Completes the options of orvelle-probe in fish.
complete -c orvelle-probe -f
complete -c orvelle-probe -l follow -d 'Print a line of JSON for each sample'
complete -c orvelle-probe -l waybar -d 'Print lines for Waybar and i3blocks'
complete -c orvelle-probe -l plain -d 'Print lines of plain text'
complete -c orvelle-probe -l interval -x -d 'Seconds between two lines'
complete -c orvelle-probe -l fields -x -d 'What the lines tell'
complete -c orvelle-probe -l report -F -d 'Write a file to attach to a bug report'
complete -c orvelle-probe -l root -x -a '(__fish_complete_directories)' -d 'Read a recorded machine'
complete -c orvelle-probe -l step -x -d 'Seconds between two samples of a recorded machine'
complete -c orvelle-probe -l cycles -x -d 'How many samples to take'
complete -c orvelle-probe -l modules -d 'Print the modules'
complete -c orvelle-probe -s h -l help -d 'Print the options'
complete -c orvelle-probe -s v -l version -d 'Print the version'
