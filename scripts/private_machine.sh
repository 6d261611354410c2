# Sourced by ./run: the private Windows drive on which the program is tried out.

# make_machine FOLDER BUILD: a Wine prefix FOLDER/prefix with what a Windows 98 machine has: three
# installed screens, a boot configuration file, and a folder with the sample sets of BUILD.
make_machine() {
    local folder=$1 samples=$2/samples drive=$1/prefix/drive_c padding
    rm -rf "$folder"
    mkdir -p "$folder/home"
    scripts/make_prefix "$folder/prefix" || return 1

    cp "$samples/installed/LOGO.SYS" "$drive/"
    cp "$samples/installed/LOGOW.SYS" "$samples/installed/LOGOS.SYS" "$drive/windows/"
    cp -r "$samples/sets" "$drive/Logos"
    cp -r "$samples/pictures" "$drive/Pictures"
    {
        printf '[Paths]\r\nWinDir=C:\\WINDOWS\r\nWinBootDir=C:\\WINDOWS\r\nHostWinBootDrv=C\r\n\r\n'
        printf '[Options]\r\nBootMulti=1\r\nBootGUI=1\r\nLogo=1\r\nNetwork=1\r\n;\r\n'
        printf ';The following lines are required for compatibility with other programs.\r\n'
        printf ';Do not remove them (MSDOS.SYS needs to be >1024 bytes).\r\n'
        padding=$(printf 'x%.0s' $(seq 66))
        for letter in a b c d e f g h i j k l m n o p; do
            printf ';%s%s\r\n' "$padding" "$letter"
        done
    } >"$drive/msdos.sys"
    printf '%s\r\n' REGEDIT4 '' '[HKEY_LOCAL_MACHINE\SOFTWARE\Tarnwick\Vistrel]' \
        '"LogoPath"="C:\\Logos\\"' '"SearchLogoPath"="C:\\Pictures\\"' >"$folder/settings.reg"
    in_wine "$folder" env -u DISPLAY wine regedit /S "$folder/settings.reg" &&
        set_attributes "$folder" 'C:\msdos.sys' +h +s +r &&
        install_programs "$folder" "$2" &&
        in_wine "$folder" wineserver -w
}

# set_attributes FOLDER FILE ATTRIBUTE...: Wine's attrib takes one at a time.
set_attributes() {
    local folder=$1 file=$2 attribute
    shift 2
    for attribute; do
        in_wine "$folder" env -u DISPLAY wine attrib "$attribute" "$file" || return 1
    done
}

# install_programs FOLDER BUILD: puts the programs of BUILD, as they are now, on the machine.
install_programs() {
    local folder="$1/prefix/drive_c/Program Files/Vistrel"
    mkdir -p "$folder"
    cp "$2"/bin/*.exe "$2"/bin/*.hlp "$folder/"
}
