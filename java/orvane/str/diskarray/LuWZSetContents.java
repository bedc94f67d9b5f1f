package orvane.str.diskarray;

public class LuWZSetContents {
    public String setcontens;
}
