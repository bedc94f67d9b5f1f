package orvane.str.diskarray;

/** Lacks port_save_data, the last field whose failure drops the object. */
public class WZRomResponse {
    public int mode;
    public int[] port_save_data_absent;
}
