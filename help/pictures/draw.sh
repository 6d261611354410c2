#!/bin/bash
# Draws the pictures of the help with ImageMagick: 16 colours, no smoothing, so that they look the
# same on a display of 256 colours. Run it after a change and commit the pictures it makes.
set -eu
cd "$(dirname "$0")"

draw() { # FILE SIZE DRAWING
    convert -size "$2" xc:white +antialias -font Liberation-Sans -pointsize 12 \
        -fill none -stroke black -draw "$3" \
        +dither -colors 16 -type palette -compress none "BMP3:$1"
}

monitor() { # LEFT SCREEN_COLOUR
    echo "translate $1,0
        stroke black fill #c0c0c0 roundrectangle 0,4 95,75 4,4
        fill #808080 rectangle 8,11 87,67
        stroke none fill $2 rectangle 10,13 85,65
        stroke black fill #c0c0c0 rectangle 35,75 60,80 rectangle 22,80 73,85"
}

arrow() { # LEFT
    echo "push graphic-context translate $1,40 stroke none fill #000080
        rectangle 0,-2 12,2 polygon 12,-7 20,0 12,7 pop graphic-context"
}

label() { # X TEXT
    echo "stroke none fill black text $1,102 '$2'"
}

draw screens.bmp 370x110 "
    push graphic-context $(monitor 4 '#00a0e0')
        stroke none fill #ffff80 circle 30,32 30,24
        fill #00a000 polygon 10,66 34,46 52,58 66,50 86,66
        $(label 2 'Startup screen') pop graphic-context
    $(arrow 107)
    push graphic-context $(monitor 134 '#000080')
        stroke none fill white polygon 38,24 58,24 48,39 polygon 48,39 38,54 58,54
        fill #ffff80 polygon 44,32 52,32 48,38 polygon 40,53 48,46 56,53
        $(label 12 'Wait screen') pop graphic-context
    $(arrow 237)
    push graphic-context $(monitor 264 black)
        stroke none fill #ff8000 rectangle 22,32 73,35 rectangle 28,40 67,43
        $(label -6 'Shutdown screen') pop graphic-context"

folder() { # LEFT
    echo "translate $1,0 stroke black fill #ffff80
        polygon 0,12 0,8 4,4 16,4 20,8 36,8 36,12 rectangle 0,12 38,36"
}

screen() { # TOP COLOUR NAME
    echo "stroke #808080 line 14,$(($1 + 9)) 27,$(($1 + 9))
        stroke black fill $2 rectangle 28,$1 50,$(($1 + 18))
        stroke none fill black text 58,$(($1 + 13)) '$3'"
}

draw sets.bmp 370x124 "
    push graphic-context $(folder 6)
        stroke none fill black text 46,28 'Sunset'
        stroke #808080 line 14,37 14,111
        $(screen 44 '#00a0e0' LOGO.SYS) $(screen 73 '#000080' LOGOW.SYS) $(screen 102 black LOGOS.SYS)
    pop graphic-context
    push graphic-context $(folder 196)
        stroke none fill black text 46,28 'Sunset.SLS'
        stroke #808080 line 14,37 14,53
        $(screen 44 '#00a0e0' LOGO.SYS)
    pop graphic-context"

draw shape.bmp 370x118 "
    stroke black fill #00a0e0 rectangle 4,12 103,87
    stroke none fill #ffff80 ellipse 53,48 25,25 0,360
    fill black text 14,108 'Your picture'
    $(arrow 114)
    stroke black fill #00a0e0 rectangle 146,12 205,87
    stroke none fill #ffff80 ellipse 175,48 15,25 0,360
    fill black text 152,108 'Preview'
    $(arrow 216)
    push graphic-context $(monitor 254 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 17,17 0,360
        fill black text 22,108 'At startup' pop graphic-context"

# A picture twice as wide as high on screens of 76 x 52.
draw framing.bmp 370x118 "
    push graphic-context $(monitor 4 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 11,20 0,360
        fill #00a000 rectangle 10,13 16,65 rectangle 79,13 85,65
        $(label 26 'Stretch') pop graphic-context
    push graphic-context $(monitor 134 '#00a0e0')
        stroke none fill #ffff80 ellipse 48,39 20,20 0,360
        $(label 40 'Fill') pop graphic-context
    push graphic-context $(monitor 264 black)
        stroke none fill #00a0e0 rectangle 10,20 85,57
        fill #ffff80 ellipse 48,39 14,14 0,360
        fill #00a000 rectangle 10,20 16,57 rectangle 79,20 85,57
        $(label 42 'Fit') pop graphic-context"
