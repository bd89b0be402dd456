# cmake -DOUTPUT=FILE -DINPUTS="A;B" -P JoinFiles.cmake writes the inputs one after the other.
set(joined "")
foreach(input IN LISTS INPUTS)
    file(READ ${input} text)
    string(APPEND joined "${text}\n")
endforeach()
file(WRITE ${OUTPUT} "${joined}")
