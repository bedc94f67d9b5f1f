package orvane.str.diskarray;

public class LUReallocInfo {
    public int lun;
    public int lusize;
    public int newlun;
}
