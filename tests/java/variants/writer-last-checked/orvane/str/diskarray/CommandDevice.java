package orvane.str.diskarray;

/** Lacks cmddev, the last field whose failure drops the object. */
public class CommandDevice {
    public int volk_lite;
    public int mode;
    public int[] valid = new int[2];
    public int[] lu = new int[2];
    public int[] security = new int[2];
    public String sequence_no;
    public int cmd_count;
    public CmdDevInfo[] cmddev_absent;
}
