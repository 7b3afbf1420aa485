# Completes the options of orvelle in fish.
complete -c orvelle -f
complete -c orvelle -l desktop -x -a 'auto wayland x11 tray' -d 'Where Orvelle appears'
complete -c orvelle -l settings -d 'Open the settings'
complete -c orvelle -l open -x -a '(orvelle-probe --modules 2>/dev/null | cut -f 1)' -d 'Open the panel of a module'
complete -c orvelle -l quit -d 'End the running Orvelle'
complete -c orvelle -s h -l help -d 'Print the options'
complete -c orvelle -s v -l version -d 'Print the version'
