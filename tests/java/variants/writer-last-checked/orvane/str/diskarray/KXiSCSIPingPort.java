package orvane.str.diskarray;

/** Lacks schedule_count, the last field whose failure drops the object. */
public class KXiSCSIPingPort {
    public int port_valid;
    public int request_valid;
    public String ip_address;
    public int status;
    public int execute_count;
    public int success_count;
    public int schedule_count_absent;
}
